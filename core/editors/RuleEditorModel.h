#pragma once

#include <QString>
#include <QStringView>

#include <span>

enum class ObjectListType;

// A tool of the condition editor's bar and menus.
struct RuleEditorTool
{
    QStringView id;
    QStringView menu; // the id of the menu it stands in
    QStringView caption;
    QStringView toolTip;
    bool onToolBar = true; // the editing commands stand in the menus only
};

struct RuleEditorMenu
{
    QStringView id;
    QStringView caption;
};

// The condition editor without its widgets: caption, tools, what each insert tool puts into the
// text, the checks with their messages, and the close logic with its questions. The text is
// handed in as the editing widget holds it; the model keeps the opening text and the outcome.
class RuleEditorModel final
{
public:
    enum class Unload { Stay, RetryLater, Close };

    struct Insertion
    {
        QString content;
        int caret;
    };

    // Set before the form is shown.
    void setRuleCode(const QString &code) { m_openingText = code; }
    const QString &OpeningText() const { return m_openingText; }
    void setRuleTitle(const QString &title) { m_ruleTitle = title; }
    void setRuleID(qint32 id) { m_ruleID = id; }
    void setRuleType(qint32 type) { m_ruleType = type; }
    qint32 RuleType() const { return m_ruleType; }

    QString Caption() const;
    // In menu order; every tool is always available.
    static std::span<const RuleEditorTool> tools();
    static std::span<const RuleEditorMenu> menus();
    static QString HelpTopic();
    static QString LanguageHelpTopic();

    // The three tools that insert a fixed line: its text with a CR LF line end; empty for any
    // other tool id.
    static QString ToolText(const QString &toolId);
    // The text as it stands after `text` was put at `caret`, and where the caret goes then:
    // behind the insertion for a caretOffset of -1, else `caretOffset` after the old caret.
    static Insertion
    InsertScriptText(const QString &content, int caret, const QString &text, int caretOffset);
    // From a picker's selection, "%Object.Property%"; empty for a malformed selection.
    static QString ObjectPropertyText(const QString &userSelection);
    // From "%Object.WF.Workfield%".
    static QString ObjectWorkfieldText(const QString &userSelection);
    static QString ParserEventText(const QString &eventName);
    // The objects the workfield picker offers: those of the rule's kind of convention.
    ObjectListType WorkfieldListType() const;

    // All three rules of a condition, each refusal shown as a warning; of a syntax error the
    // position is kept for the editor to show.
    bool CheckCondition(const QString &text);
    // The check syntax tool: the syntax alone, with a box for either outcome.
    bool CheckSyntax(const QString &text);
    int ErrorLine() const { return m_errorLine; }
    int ErrorColumn() const { return m_errorColumn; }

    // Asks whether to save a changed text. True means stay in the editor.
    bool QueryAbortClose(const QString &text);
    bool SaveOnClose() const { return m_saveOnClose; }
    // True when the form may close: the condition passed and Cancelled is now false.
    bool SaveAndCloseForm(const QString &text);
    void CloseForm() { m_cancelled = true; }
    // The close tool; true when the form is to close.
    bool CloseTool(const QString &text);
    // The close of the window by its frame. `editorState` is the editing widget's answer to
    // whether it can close: -1 busy for a moment, 1 no, anything else yes.
    Unload QueryUnload(const QString &text, bool fromUser, int editorState);

    bool Cancelled() const { return m_cancelled; }

private:
    QString m_openingText;
    QString m_ruleTitle;
    qint32 m_ruleID = 0;
    qint32 m_ruleType = 0;
    bool m_saveOnClose = false;
    bool m_cancelled = true;
    int m_errorLine = 0;
    int m_errorColumn = 0;
};
