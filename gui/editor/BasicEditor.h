#pragma once

#include "basic/BasicCompletion.h"
#include "basic/BasicDiagnostic.h"

#include <QPlainTextEdit>
#include <QTextDocument>

#include <functional>
#include <vector>

class BasicEditorMargin;
class BasicHighlighter;
class QCompleter;
class QStringListModel;
class QTimer;

// The editing widget of condition scripts: colouring by the language's tokens, line numbers,
// error marks from the syntax check (renewed a moment after typing stops) with their messages as
// tool tips, completion of the `Quorin` members and of vocabulary names, smart indentation, block
// indent and outdent, comments, bracket pairs, the caret's line lit, find and replace. Scripts go
// in and out with CR LF line ends.
class BasicEditor final : public QPlainTextEdit
{
    Q_OBJECT

public:
    enum class Mark { None, Warning, Error };

    explicit BasicEditor(QWidget *parent = nullptr);
    ~BasicEditor() override;

    QString script() const;
    void setScript(const QString &script);
    // The text with LF line ends.
    QString editorText() const;
    int caretPosition() const;
    void setCaretPosition(int position);
    // Puts `text` (any line ends) at the caret as one undoable step, as InsertScriptText does.
    void insertAtCaret(const QString &text, int caretOffset = -1);
    // To the 1-based line and column, e.g. of an error.
    void goTo(int line, int column);

    // Whether the widget can close now: 0 yes, -1 busy for a moment, 1 no. It is never busy.
    int closeState() const { return 0; }

    // The check behind the marks; runs at once instead of after the idle delay.
    void recheck();
    void setRecheckDelay(int milliseconds);
    const std::vector<BasicDiagnostic> &errors() const { return m_errors; }
    const std::vector<BasicDiagnostic> &warnings() const { return m_warnings; }
    Mark markOfLine(int line) const;
    QStringList messagesOfLine(int line) const;
    // 1-based line at a height of the viewport; 0 below the last line.
    int lineAt(int y) const;

    // Where the workfield names for completion come from.
    void setWorkfieldSource(std::function<QStringList()> source)
    {
        m_workfields = std::move(source);
    }
    QCompleter *completer() const { return m_completer; }
    // Opens the completion list for the word at the caret, when there is something to offer.
    bool complete();

    // One level of indentation, as the script has it.
    QString indentUnit() const;
    // The lines of the selection (the caret's line without one) one level deeper or shallower,
    // and in and out of comments; each one undo step.
    void indentSelection();
    void outdentSelection();
    void toggleComment();

    // From the caret on, round to the start once; false when the text is nowhere.
    bool findText(const QString &text, QTextDocument::FindFlags flags = {});
    // Replaces the selection when it is `text`, then finds the next one.
    bool replaceNext(const QString &text,
                     const QString &replacement,
                     QTextDocument::FindFlags flags = {});
    // Every occurrence, as one undo step; how many.
    int replaceAll(const QString &text,
                   const QString &replacement,
                   QTextDocument::FindFlags flags = {});

    // The messages of the errors and warnings marked at a position of the text, one a line.
    QString diagnosticAt(int position) const;

signals:
    // A right click: the owner shows its menu.
    void contextMenuRequested(const QPoint &globalPosition);
    void marksChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    friend class BasicEditorMargin;
    QRectF blockBox(const QTextBlock &block) const;
    void updateMarginWidth();
    void updateMargin(const QRect &rect, int dy);
    void insertCompletion(const QString &word);
    void showErrorUnderlines();
    void updateExtraSelections();
    // Runs `edit` over the whole lines of the selection and selects the result.
    void editSelectedLines(const std::function<QStringList(const QStringList &)> &edit);
    void insertIndent();
    void insertNewLine();
    void outdentTypedLine();

    BasicEditorMargin *m_margin;
    BasicHighlighter *m_highlighter;
    QCompleter *m_completer;
    QStringListModel *m_words;
    QTimer *m_recheckTimer;
    CompletionContext m_completion;
    std::function<QStringList()> m_workfields;
    std::vector<BasicDiagnostic> m_errors;
    std::vector<BasicDiagnostic> m_warnings;
    QList<QTextEdit::ExtraSelection> m_underlines;
};
