#include "editors/RuleEditorModel.h"

#include "basic/BasicSyntaxChecker.h"
#include "basic/ConditionRules.h"
#include "basic/ScriptText.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/IRule.h"
#include "vocabulary/ObjectListType.h"

#include <algorithm>

namespace {

constexpr const char *module = "frmRuleEditor";
const QString crlf = QStringLiteral("\r\n");

constexpr RuleEditorMenu menuTable[] = {
    {u"mnuFile", u"&Condition"},
    {u"mnuEdit", u"&Edit"},
    {u"mnuInsert", u"&Insert"},
    {u"mnuHelp", u"&Help"},
};

constexpr RuleEditorTool toolTable[] = {
    {u"tlCheckSyntax", u"mnuFile", u"Check S&yntax", u"Check Syntax"},
    {u"tlSaveAndClose", u"mnuFile", u"&Save and Close", u"Save the condition and close"},
    {u"tlClose", u"mnuFile", u"&Close", u""},
    {u"tlUndo", u"mnuEdit", u"&Undo", u"Undo Last Edit"},
    {u"tlRedo", u"mnuEdit", u"&Redo", u"Redo Last Edit"},
    {u"tlCut", u"mnuEdit", u"Cu&t", u"Cut", false},
    {u"tlCopy", u"mnuEdit", u"&Copy", u"Copy", false},
    {u"tlPaste", u"mnuEdit", u"&Paste", u"Paste", false},
    {u"tlSelectAll", u"mnuEdit", u"Select &All", u"Select All", false},
    {u"tlFind", u"mnuEdit", u"&Find...", u"Find", false},
    {u"tlFindNext", u"mnuEdit", u"Find &Next", u"Find Next", false},
    {u"tlReplace", u"mnuEdit", u"R&eplace...", u"Replace", false},
    {u"tlGoToLine", u"mnuEdit", u"&Go to Line...", u"Go to Line", false},
    {u"tlToggleComment", u"mnuEdit", u"Toggle Co&mment", u"Comment or Uncomment Lines", false},
    {u"tlObjectProperty", u"mnuInsert", u"&Object Property...", u"Insert Object Property"},
    {u"tlObjectWorkfield", u"mnuInsert", u"Object &Workfield...", u"Insert Object Workfield"},
    {u"tlParserEvent", u"mnuInsert", u"&Parser Event...", u"Insert Parser Event"},
    {u"tlCancelPV", u"mnuInsert", u"&Cancel Pending Violation", u"Insert Cancel Pending Violation"},
    {u"tlRaiseViolation", u"mnuInsert", u"&Raise Violation", u"Insert Raise Violation"},
    {u"tlApplyConvention", u"mnuInsert", u"&Apply Convention", u"Apply Convention"},
    {u"tlQuorinHelp", u"mnuHelp", u"&Quorin Administrator Help", u"Quorin Administrator Help"},
    {u"tlLanguageHelp", u"mnuHelp", u"&Condition Language Help", u"Condition Language Help"},
};

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// "%inner%" without its two outer characters; null when it is not of that form.
QString unwrapped(const QString &selection)
{
    if (selection.size() < 2)
        return {};
    return selection.sliced(1, selection.size() - 2);
}

} // namespace

QString RuleEditorModel::Caption() const
{
    const QString caption = QStringLiteral("Condition Editor");
    if (m_ruleTitle.isEmpty())
        return caption;
    if (m_ruleID > 0)
        return caption + QStringLiteral(" - [") + Text::zeroPadded(m_ruleID, 4)
               + QStringLiteral("] ") + m_ruleTitle;
    return caption + QStringLiteral(" - ") + m_ruleTitle;
}

std::span<const RuleEditorTool> RuleEditorModel::tools()
{
    return toolTable;
}

std::span<const RuleEditorMenu> RuleEditorModel::menus()
{
    return menuTable;
}

QString RuleEditorModel::HelpTopic()
{
    return QStringLiteral("::/ConditionEditor.htm");
}

QString RuleEditorModel::LanguageHelpTopic()
{
    return QStringLiteral("::/ConditionLanguage.htm");
}

QString RuleEditorModel::ToolText(const QString &toolId)
{
    if (Text::same(toolId, QStringLiteral("tlCancelPV")))
        return QStringLiteral("Call Quorin.CancelPendingViolation()") + crlf;
    if (Text::same(toolId, QStringLiteral("tlRaiseViolation")))
        return QStringLiteral("Call Quorin.RaiseViolation()") + crlf;
    if (Text::same(toolId, QStringLiteral("tlApplyConvention")))
        return QStringLiteral("Quorin.ApplyConvention") + crlf;
    return {};
}

RuleEditorModel::Insertion RuleEditorModel::InsertScriptText(const QString &content,
                                                             int caret,
                                                             const QString &text,
                                                             int caretOffset)
{
    const int at = std::clamp(caret, 0, int(content.size()));
    Insertion result;
    result.content = content.left(at) + text + content.mid(at);
    result.caret = caretOffset == -1 ? at + int(text.size()) : at + caretOffset;
    return result;
}

QString RuleEditorModel::ObjectPropertyText(const QString &userSelection)
{
    const QString inner = unwrapped(userSelection);
    const qsizetype dot = inner.indexOf(QLatin1Char('.'));
    if (dot < 0)
        return {};
    return QStringLiteral("Quorin.GetObjectProperty(") + quoted(inner.left(dot))
           + QStringLiteral(", ") + quoted(inner.mid(dot + 1)) + QLatin1Char(')');
}

QString RuleEditorModel::ObjectWorkfieldText(const QString &userSelection)
{
    const QString inner = unwrapped(userSelection);
    const qsizetype dot = inner.indexOf(QLatin1Char('.'));
    const qsizetype second = dot < 0 ? -1 : inner.indexOf(QLatin1Char('.'), dot + 1);
    if (second < 0)
        return {};
    return QStringLiteral("Quorin.GetObjectWorkField(") + quoted(inner.left(dot))
           + QStringLiteral(", ") + quoted(inner.mid(second + 1)) + QLatin1Char(')');
}

QString RuleEditorModel::ParserEventText(const QString &eventName)
{
    return QStringLiteral("Quorin.ParserEvent() = ") + quoted(eventName);
}

ObjectListType RuleEditorModel::WorkfieldListType() const
{
    return m_ruleType == RuleTypes::NamingConvention ? ObjectListType::NamingConvention
                                                     : ObjectListType::CodingConvention;
}

bool RuleEditorModel::CheckCondition(const QString &text)
{
    return guarded("CheckCondition", module, false, [&] {
        const ConditionRules::ConditionCheck check
            = ConditionRules::CheckCondition(ScriptText::fromEditor(text), m_ruleType);
        m_errorLine = check.line;
        m_errorColumn = check.column;
        if (check.passed)
            return true;
        if (check.syntaxError)
            showWarning(check.message, programTitle() + ConditionRules::SyntaxErrorTitleSuffix);
        else
            showWarning(check.message);
        return false;
    });
}

bool RuleEditorModel::CheckSyntax(const QString &text)
{
    return guarded("CheckSyntax", module, false, [&] {
        BasicSyntaxChecker checker;
        const bool passed = checker.check(ScriptText::fromEditor(text));
        m_errorLine = checker.errorLine();
        m_errorColumn = checker.errorColumn();
        if (passed) {
            UserInterface::current().messageBox(ConditionRules::SyntaxCorrectMessage,
                                                MessageButtons::OK,
                                                MessageIcon::Information,
                                                programTitle(),
                                                MessageResult::OK);
        } else {
            showWarning(checker.errorMessage(),
                        programTitle() + ConditionRules::SyntaxErrorTitleSuffix);
        }
        return passed;
    });
}

bool RuleEditorModel::QueryAbortClose(const QString &text)
{
    // On any failure stay: the text is still in the editor.
    return guarded("QueryAbortClose", module, true, [&] {
        // Line ends don't count: the widget and the rulebase may write them differently.
        if (ScriptText::toEditor(m_openingText)
                .compare(ScriptText::toEditor(text), Qt::CaseInsensitive)
            == 0)
            return false;
        // Cancel by default: Enter after Escape goes back to the text, neither keeping a change
        // the person meant to drop nor dropping one they meant to keep.
        switch (askYesNoCancel(QStringLiteral("Do you want to save your changes?"),
                               MessageResult::Cancel)) {
        case MessageResult::Yes:
            if (!CheckCondition(text))
                return true;
            m_saveOnClose = true;
            return false;
        case MessageResult::No:
            return false;
        default:
            return true;
        }
    });
}

bool RuleEditorModel::SaveAndCloseForm(const QString &text)
{
    if (!CheckCondition(text))
        return false;
    m_cancelled = false;
    return true;
}

bool RuleEditorModel::CloseTool(const QString &text)
{
    if (QueryAbortClose(text))
        return false;
    if (m_saveOnClose) {
        m_saveOnClose = false;
        return SaveAndCloseForm(text);
    }
    CloseForm();
    return true;
}

RuleEditorModel::Unload
RuleEditorModel::QueryUnload(const QString &text, bool fromUser, int editorState)
{
    if (fromUser && QueryAbortClose(text))
        return Unload::Stay;
    if (!m_saveOnClose) {
        if (editorState == -1)
            return Unload::RetryLater;
        if (editorState == 1)
            return Unload::Stay;
    }
    if (!fromUser)
        return Unload::Close;
    if (m_saveOnClose) {
        // The unload of the frame gives way to the program's own, after the save.
        m_saveOnClose = false;
        return SaveAndCloseForm(text) ? Unload::Close : Unload::Stay;
    }
    CloseForm();
    return Unload::Close;
}
