#include "PreviewTestSupport.h"

#include "preview/CatalogueObject.h"
#include "preview/ParserEvent.h"
#include "preview/PreviewRun.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/UnauthorisedKeyword.h"

#include "support/TestEnvironment.h"

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

namespace CO = CatalogueObject;

// The rules the expectations below are written for.
std::shared_ptr<Rulebase> kindsRulebase()
{
    auto rulebase = std::make_shared<Rulebase>();
    const auto lists = rulebase->RuleLists();
    auto privates = namingConvention(CO::PrivateVariable, {{1, "m"}});
    privates->setBodyActive(true);
    privates->setBodyPattern(u"^[A-Z][a-z\u00e4\u00f6\u00fc\u00df]+$"_s);
    lists->AddConvention(privates, true); // 5000
    lists->AddConvention(unauthorisedKeyword(R"(\bGoTo\b)", {ParserEvent::ProcedureBody}),
                         true); // 5001
    auto conditional = namingConvention(CO::Control, {{1, "x"}});
    conditional->setCondition(u"Sub Main\nEnd Sub"_s);
    lists->AddConvention(conditional, true);                              // 5002
    lists->AddConvention(namingConvention(CO::Control, {{2, ""}}), true); // 5003
    rulebase->setUnknownControlViolation(true);
    rulebase->AuthorisedComponents()->Add(
        u"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}"_s, u"MSCOMCTL.OCX"_s, u"1.0"_s, {});
    rulebase->AuthorisedReferences()->Add(
        u"{00020430-0000-0000-C000-000000000046}"_s, u"OLE Automation"_s, QString(), QString(), {});
    rulebase->setTolerancePercentageComments(50);
    return rulebase;
}

QStringList describe(const PreviewResult &result)
{
    QStringList lines;
    for (const PreviewFinding &f : result.findings)
        lines << u"%1 %2:%3 '%4' %5"_s.arg(f.ruleId, QFileInfo(f.file).fileName())
                     .arg(f.line)
                     .arg(f.name, f.message);
    return lines;
}

} // namespace

// A group with a missing project, a project with a missing file, every rule class: each name,
// line, library and limit the rulebase would report, in order, and nothing else.
TEST(PreviewRun, ReportsWhatTheRulebaseWouldOnAProjectAndNamesWhatCouldNotBeRead)
{
    PreviewRun run(kindsRulebase());
    const PreviewResult result = run.run({kindsDir() + u"/Kinds.vbg"_s});
    const QStringList expected = {
        "5002 Kinds.vbp:0 '' not previewed (needs its condition): 6 names in scope",
        "TolerancePercentageComments Kinds.vbp:0 'Kinds' comment lines are 1% of the code and "
        "comment lines (1 of 52), at least 50% required",
        "UnauthorisedReference Kinds.vbp:3 'Microsoft ActiveX Data Objects 2.5 Library' the "
        "reference {00000205-0000-0010-8000-00AA006D2EA4} version 2.5 is not authorised",
        "UnauthorisedComponentVersion Kinds.vbp:5 'MSCOMCTL.OCX' version 2.0 of the component "
        "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1} is not authorised (authorised: 1.0)",
        "UnauthorisedComponent Kinds.vbp:6 'comdlg32.ocx' the component "
        "{F9043C88-F6F2-101A-A3C9-08002B2F49FB} version 1.2 is not authorised",
        "5003 frmKinds.frm:12 'Text1' expected prefix 'txt' for a VB.TextBox",
        "5003 frmKinds.frm:18 'lvwItems' expected prefix 'ctl' for a MSComctlLib.ListView",
        "UnknownControl frmKinds.frm:18 'lvwItems' the ProgID 'MSComctlLib.ListView' has no "
        "control tag",
        "5000 modKinds.bas:20 'm_colItems' body '_colItems' does not match the pattern "
        "'^[A-Z][a-z\u00e4\u00f6\u00fc\u00df]+$'",
        "5000 modKinds.bas:21 'iIndex' expected prefix 'm'",
        "5001 modKinds.bas:30 'GoTo' 'GoTo' matches the unauthorised keyword pattern '\\bGoTo\\b'",
        "UnreadFile modMissing.bas:0 'modMissing.bas' No such file",
        // The group's second project, which is not there.
        "UnreadFile Gone.vbp:0 'Gone.vbp' No such file",
    };
    EXPECT_EQ(describe(result), expected) << describe(result).join(QLatin1Char('\n')).toStdString();
    ASSERT_EQ(result.projects.size(), 2u);
    EXPECT_EQ(result.projects[0].name, u"Kinds"_s);
    EXPECT_EQ(result.projects[0].files, 9);
    EXPECT_EQ(result.projects[0].unreadFiles, 1);
    EXPECT_FALSE(result.projects[1].read);
    EXPECT_FALSE(result.cancelled);
    EXPECT_EQ(result.count(PreviewFinding::Kind::Unread), 2);
    EXPECT_EQ(result.count(PreviewFinding::Kind::NotPreviewed), 1);

    // A filter keeps the rules named (and unread files, which are no rule's).
    PreviewRun filtered(kindsRulebase());
    EXPECT_EQ(filtered.setRuleFilter(
                  {u"5001Key"_s, u"unauthorisedcomponent"_s, u"9999"_s, u"Nonsense"_s}),
              QStringList({u"9999"_s, u"Nonsense"_s}));
    QStringList rules;
    for (const PreviewFinding &finding : filtered.run({kindsDir() + u"/Kinds.vbp"_s}).findings)
        rules << finding.ruleId;
    EXPECT_EQ(rules, QStringList({u"UnauthorisedComponent"_s, u"5001"_s, u"UnreadFile"_s}));

    // Arguments that are no project: a finding each, named by their path.
    PreviewRun bad(kindsRulebase());
    const PreviewResult none
        = bad.run({kindsDir() + u"/modKinds.bas"_s, kindsDir() + u"/Nothing.vbp"_s});
    EXPECT_EQ(
        describe(none),
        QStringList({"UnreadFile modKinds.bas:0 'modKinds.bas' Neither a project (.vbp) nor a "
                     "group (.vbg) file",
                     "UnreadFile Nothing.vbp:0 'Nothing.vbp' No such file"}));

    // Patterns that don't compile are said once, with the reason, and checked nowhere.
    auto faulty = std::make_shared<Rulebase>();
    faulty->RuleLists()->AddConvention(unauthorisedKeyword("Sub (", {ParserEvent::ProcedureBody}),
                                       true);
    auto body = namingConvention(CO::PrivateVariable, {});
    body->setBodyActive(true);
    body->setBodyPattern(u"[A-"_s);
    faulty->RuleLists()->AddConvention(body, true);
    QStringList messages;
    for (const PreviewFinding &finding :
         PreviewRun(faulty).run({kindsDir() + u"/Kinds.vbp"_s}).findings) {
        if (finding.ruleType != 0)
            messages << finding.ruleId + QLatin1Char(' ')
                            + finding.message.section(QLatin1Char(':'), 0, 0);
    }
    EXPECT_EQ(messages,
              QStringList({"5000 not previewed (its pattern does not compile",
                           "5001 not previewed (the body pattern does not compile"}));
}

// Cancelled from its progress, a run stops before the next file and says so; tolerances of
// a part of a project are not judged.
TEST(PreviewRun, StopsWhenCancelledFromItsProgress)
{
    PreviewRun run(kindsRulebase());
    QStringList seen;
    run.setProgress([&](qint64 done, qint64 total, const QString &file) {
        EXPECT_EQ(total, 10);
        seen << QFileInfo(file).fileName();
        if (done == 2)
            run.cancel();
    });
    const PreviewResult result = run.run({kindsDir() + u"/Kinds.vbp"_s});
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(seen, QStringList({"modKinds.bas", "cKinds.cls", "frmKinds.frm"}));
    EXPECT_EQ(result.projects[0].files, 2);
    for (const PreviewFinding &finding : result.findings)
        EXPECT_FALSE(finding.ruleId.startsWith("Tolerance"_L1)) << finding.message.toStdString();
}
