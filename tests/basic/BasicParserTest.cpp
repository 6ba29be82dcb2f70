#include "BasicTestSupport.h"

#include "support/TestEnvironment.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString firstError(const char *text)
{
    BasicSyntaxChecker checker;
    if (checker.check(code(text)))
        return u"OK"_s;
    return u"%1:%2 %3"_s.arg(checker.errorLine())
        .arg(checker.errorColumn())
        .arg(checker.errorText());
}

} // namespace

TEST(BasicParser, OperatorsBindByPrecedence)
{
    const auto tree = BasicSyntaxChecker::expressionTree;
    EXPECT_EQ(tree(u"a Or b And Not c = d ^ -e"_s), u"(a Or (b And (Not (c = (d ^ (-e))))))"_s);
    EXPECT_EQ(tree(u"-a ^ b * c"_s), u"((-(a ^ b)) * c)"_s);
    EXPECT_EQ(tree(u"a * b / c \\ d Mod e + f - g & h"_s),
              u"(((((((a * b) / c) \\ d) Mod e) + f) - g) & h)"_s);
    EXPECT_EQ(tree(u"a & b = c Like d"_s), u"(((a & b) = c) Like d)"_s);
    EXPECT_EQ(tree(u"a Imp b Eqv c Xor d Or e"_s), u"(a Imp (b Eqv (c Xor (d Or e))))"_s);
    EXPECT_EQ(tree(u"(a Or b) And c"_s), u"((a Or b) And c)"_s);
    EXPECT_EQ(tree(u"a - -b * c"_s), u"(a - ((-b) * c))"_s);
    EXPECT_EQ(tree(u"x.y(1, , z:=2).w"_s), u"x.y(1, , z:=2).w"_s);
    EXPECT_EQ(tree(u"x Is Nothing"_s), u"(x Is Nothing)"_s);
    EXPECT_EQ(tree(u"a +"_s), QString());
    EXPECT_EQ(tree(u"a b"_s), QString());
}

TEST(BasicParser, PlacesEachErrorWhereABasicIdeWould)
{
    const std::pair<const char *, const char *> cases[] = {
        {"  If a Then|  x = 1", "2:3 Block If without End If"},
        {"  For i = 1 To 2|    If a Then|  Next", "4:3 Expected: End If"},
        {"  x = ", "2:7 Expected: expression"},
        {"  x = (a + b", "2:13 Expected: )"},
        {"  x = Foo(a b)", "2:13 Expected: list separator or )"},
        {"x = 1", "1:1 Invalid outside procedure"},
        {"  Next", "2:3 Next without For"},
        {"  Loop", "2:3 Loop without Do"},
        {"  Wend", "2:3 Wend without While"},
        {"  End If", "2:3 End If without block If"},
        {"  Else", "2:3 Else without If"},
        {"  Case 1", "2:3 Case without Select Case"},
        {"  End Select", "2:3 End Select without Select Case"},
        {"  End With", "2:3 End With without With"},
        {"  Do", "2:3 Do without Loop"},
        {"  For i = 1 To 2", "2:3 For without Next"},
        {"  While a", "2:3 While without Wend"},
        {"  With a", "2:3 With without End With"},
        {"  Select Case a", "2:3 Select Case without End Select"},
        {"  Select Case a|    x = 1|  Case 1|  End Select",
         "3:5 Statements and labels invalid between Select Case and first Case"},
        {"  If a Then|  Else|  Else|  End If", "4:3 Else without If"},
        {"  If a x = 1", "2:8 Expected: Then or GoTo"},
        {"  x = 1 2", "2:9 Expected: end of statement"},
        {"  x = 1 ' why|  y = 1 2 ' the comment is not the fault",
         "3:9 Expected: end of statement"},
        {"  x = ' cut short", "2:7 Expected: expression"},
        {"  For i 1 To 2|  Next", "2:9 Expected: ="},
        {"  For i = 1 2|  Next", "2:13 Expected: To"},
        {"  For Each v items|  Next", "2:14 Expected: In"},
        {"  For i = 1 To 2|  Next j", "3:8 Invalid Next control variable reference"},
        {"  Select a|  End Select", "2:10 Expected: Case"},
        {"  Exit For", "2:3 Exit For not within For...Next"},
        {"  Exit Do", "2:3 Exit Do not within Do...Loop"},
        {"  Exit Function", "2:3 Exit Function not allowed in Sub or Property"},
        {"Function F|  Exit Sub|End Function", "2:3 Exit Sub not allowed in Function or Property"},
        {"  Exit", "2:7 Expected: Do or For or Function or Property or Sub"},
        {"  GoTo Nowhere", "2:8 Label not defined"},
        {"Sub Main|L1: x = 1|L1: x = 2|End Sub", "3:1 Duplicate label"},
        {"  Dim a|  Dim A As Long", "3:7 Duplicate declaration in current scope"},
        {"  Foo(1, 2)", "2:12 Expected: ="},
        {"  x * 2", "2:5 Expected: ="},
        {"  .Value = 1", "2:3 Invalid or unqualified reference"},
        {"  Public x", "2:3 Invalid inside procedure"},
        {"Sub Main|  x = 1|Sub Other|End Sub", "3:1 Expected: End Sub"},
        {"Function F|End Sub", "2:1 Expected: End Function"},
        {"Sub Main|End Sub|Sub main|End Sub", "3:5 Ambiguous name detected: main"},
        {"Sub Main|  x = 1", "2:8 Expected: End Sub"},
        {"End Sub", "1:1 End Sub without Sub"},
        {"  End Foo",
         "2:7 Expected: If or Select or Sub or Function or Property or Type or With or Enum or end "
         "of statement"},
        {"  s = \"open", "2:7 Unterminated string constant"},
        {"  x = 1 ? 2", "2:9 Invalid character"},
        {"  Set = 1", "2:7 Expected: identifier"},
        {"  Const C", "2:10 Expected: ="},
        {"  On Error x", "2:12 Expected: GoTo or Resume"},
        {"  Then", "2:3 Syntax error"},
        {"Option Fast", "1:8 Expected: Base or Compare or Explicit or Private"},
        {"  If a Then For i = 1 To 2: x = i", "2:13 For without Next"},
        {"  x = Quorin.RaiseViolation(1)",
         "2:14 Wrong number of arguments or invalid property assignment"},
        {"  Select Case a|  Case Else|  Case 1|  End Select", "4:3 Case after Case Else"},
        {"  Do While a|  Loop Until b",
         "3:8 Do While or Do Until cannot end in Loop While or Loop Until"},
        {"  If d > #1/1/2000 Then Stop", "2:10 Unterminated date literal"},
        {"  Open f For Inptu As #1",
         "2:14 Expected: Input or Output or Append or Binary or Random"},
        {"  Open f For Input #1", "2:20 Expected: As"},
        {"  Line Input 1, s", "2:14 Expected: #"},
        {"  Name a b", "2:10 Expected: end of statement"},
        {"  pic.Line (1, 2)-", "2:19 Expected: ("},
        {"  Erase", "2:8 Expected: identifier"},
        {"  ReDim x.y", "2:12 Expected: ("},
        {"DefInt 1", "1:8 Expected: letter"},
        {"#If A Then|Sub Main|End Sub", "1:1 #If without #End If"},
        {"#Else", "1:1 #Else without #If"},
        {"#If Len(x) Then|#End If", "1:5 Constant expression required"},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(firstError(text), QString::fromLatin1(expected)) << text;
}

TEST(BasicParser, GoesOnAtTheNextLineAndReportsEveryError)
{
    EXPECT_EQ(errorsOf(code("  x = |  y = 1|  z = (1|  If a Then|  Next")),
              (QStringList{"2:7 Expected: expression",
                           "4:9 Expected: )",
                           "5:3 Block If without End If",
                           "6:3 Next without For"}));
    // A faulty condition keeps its block, so that End If does not fault as well.
    EXPECT_EQ(errorsOf(code("  If a = Then|  End If")), QStringList{"2:10 Expected: expression"});
    // A mismatched closer closes what it matches and the rest reads on undisturbed.
    EXPECT_EQ(errorsOf(code("  Do|    For i = 1 To 2|  Loop|  If a Then|  End If")),
              QStringList{"4:3 Expected: Next"});
    EXPECT_EQ(errorsOf(code("  For i = 1 To 2|    For j = 1 To 2|  Next i")),
              QStringList{"4:8 Invalid Next control variable reference"});
}

// Every branch is checked, but the code goes on from the branch the constants choose, and faults
// in the others are only warnings: the compiler never reads them.
TEST(BasicParser, ConditionalCompilationFollowsTheConstants)
{
    const QString text
        = code("#Const B = 1|#Const C = 4 / B + 1|Sub Main|"
               "#If C = 5 And Not Mac Then|  a = (|#ElseIf True Then|  b = (|#End If|"
               "#If Undefined Or Win64 Then|  c = (|"
               "#ElseIf \"1\" + 1 = 2 And &H10 = 16 Then|  d = (|#End If|"
               "#If VBA6 Xor Win32 Then|  For i = 1 To 2|#Else|  Do|#End If|"
               "#If VBA6 Xor Win32 Then|  Next|#Else|  Loop|#End If|End Sub");
    EXPECT_EQ(errorsOf(text),
              (QStringList{"5:8 Expected: expression", "12:8 Expected: expression"}));
    const QString leftOut = u" (in code that #If leaves out)"_s;
    EXPECT_EQ(warningsOf(text),
              (QStringList{"7:8 Expected: expression" + leftOut,
                           "10:8 Expected: expression" + leftOut,
                           "20:3 Next without For" + leftOut}));
}

TEST(BasicParser, ContinuationsAndColonsMakeLogicalLines)
{
    // A continued line is one statement; an error behind it is placed on its physical line.
    EXPECT_EQ(errorsOf(code("  x = 1 + _|      2 +")), QStringList{"3:10 Expected: expression"});
    EXPECT_EQ(errorsOf(code("  If a _|  Then x = 1 _|  Else x = 2")), QStringList());
    // Without the continuation the statement ends at the line end.
    EXPECT_EQ(errorsOf(code("  x = 1 +|      & 2")),
              (QStringList{"2:10 Expected: expression", "3:7 Syntax error"}));
    // Colons separate statements, a block opened and closed on one line included; a fault
    // skips only the rest of its own line.
    EXPECT_EQ(errorsOf(code("Sub Main: Dim i: For i = 1 To 2: x = i: Next: End Sub")),
              QStringList());
    EXPECT_EQ(errorsOf(code("  a = 1: b = : c = 3|  d = 4 5")),
              (QStringList{"2:14 Expected: expression", "3:9 Expected: end of statement"}));
}

// Whole modules in the styles administrators paste from: each must pass without an error.
// Every construct of the dialect, a module of them per file, and real modules of each kind.
TEST(BasicParser, AcceptsEveryModuleOfTheCorpus)
{
    EXPECT_EQ(errorsOf(QString()), QStringList());
    EXPECT_EQ(errorsOf(u"' nothing but a comment\r\nRem and another"_s), QStringList());
    const QDir dir(TestEnvironment::sourceDir() + u"/tests/basic/procedures"_s);
    const QStringList names = dir.entryList({u"*.bas"_s}, QDir::Files, QDir::Name);
    EXPECT_GE(names.size(), 10);
    for (const QString &name : names) {
        QFile file(dir.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        EXPECT_EQ(errorsOf(QString::fromUtf8(file.readAll())), QStringList()) << qPrintable(name);
    }
}
