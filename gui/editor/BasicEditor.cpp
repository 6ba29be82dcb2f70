#include "gui/editor/BasicEditor.h"

#include "basic/BasicSyntaxChecker.h"
#include "basic/ScriptText.h"
#include "editors/RuleEditorModel.h"
#include "gui/editor/BasicEditorMargin.h"
#include "gui/editor/BasicHighlighter.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFontDatabase>
#include <QInputDialog>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>
#include <QTimer>

namespace {

// Long scripts are checked less eagerly: a megabyte takes a noticeable moment.
constexpr int idleDelay = 400;
constexpr int longScriptDelay = 1500;
constexpr int longScript = 200 * 1024;

} // namespace

BasicEditor::BasicEditor(QWidget *parent)
    : QPlainTextEdit(parent)
    , m_margin(new BasicEditorMargin(this))
    , m_highlighter(new BasicHighlighter(document()))
    , m_completer(new QCompleter(this))
    , m_words(new QStringListModel(this))
    , m_recheckTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("sbMain"));
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabStopDistance(fontMetrics().horizontalAdvance(QLatin1Char(' ')) * 4);

    m_completer->setModel(m_words);
    m_completer->setWidget(this);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setCompletionMode(QCompleter::PopupCompletion);
    m_completer->popup()->setObjectName(QStringLiteral("sbCompletion"));
    connect(m_completer,
            qOverload<const QString &>(&QCompleter::activated),
            this,
            &BasicEditor::insertCompletion);

    m_recheckTimer->setSingleShot(true);
    m_recheckTimer->setInterval(idleDelay);
    connect(m_recheckTimer, &QTimer::timeout, this, &BasicEditor::recheck);
    connect(document(), &QTextDocument::contentsChanged, this, [this] {
        m_recheckTimer->setInterval(document()->characterCount() > longScript ? longScriptDelay
                                                                              : idleDelay);
        m_recheckTimer->start();
    });

    connect(this, &QPlainTextEdit::blockCountChanged, this, &BasicEditor::updateMarginWidth);
    connect(this, &QPlainTextEdit::updateRequest, this, &BasicEditor::updateMargin);
    updateMarginWidth();
}

BasicEditor::~BasicEditor() = default;

QString BasicEditor::script() const
{
    return ScriptText::fromEditor(editorText());
}

// Like toPlainText, but a no-break space stays what it is; positions are the same.
QString BasicEditor::editorText() const
{
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

void BasicEditor::setScript(const QString &script)
{
    setPlainText(ScriptText::toEditor(script));
    recheck();
}

int BasicEditor::caretPosition() const
{
    return textCursor().position();
}

void BasicEditor::setCaretPosition(int position)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::clamp(position, 0, document()->characterCount() - 1));
    setTextCursor(cursor);
}

void BasicEditor::insertAtCaret(const QString &text, int caretOffset)
{
    const QString inserted = ScriptText::toEditor(text);
    const int caret = caretPosition();
    const RuleEditorModel::Insertion after
        = RuleEditorModel::InsertScriptText(editorText(), caret, inserted, caretOffset);
    // The text goes in through a cursor rather than as a new whole, so that undo takes it back
    // out; a selection stays in place.
    QTextCursor cursor(document());
    cursor.setPosition(caret);
    cursor.insertText(inserted);
    setCaretPosition(after.caret);
    setFocus();
}

void BasicEditor::goTo(int line, int column)
{
    const QTextBlock block = document()->findBlockByNumber(qMax(0, line - 1));
    if (!block.isValid())
        return;
    setCaretPosition(block.position() + std::clamp(column - 1, 0, block.length() - 1));
    centerCursor();
}

void BasicEditor::recheck()
{
    m_recheckTimer->stop();
    BasicSyntaxChecker checker;
    checker.check(script());
    m_errors = checker.errors();
    m_warnings = checker.warnings();
    showErrorUnderlines();
    m_margin->update();
    emit marksChanged();
}

void BasicEditor::setRecheckDelay(int milliseconds)
{
    m_recheckTimer->setInterval(milliseconds);
}

BasicEditor::Mark BasicEditor::markOfLine(int line) const
{
    const auto onLine = [line](const BasicDiagnostic &d) { return d.line == line; };
    if (std::any_of(m_errors.begin(), m_errors.end(), onLine))
        return Mark::Error;
    if (std::any_of(m_warnings.begin(), m_warnings.end(), onLine))
        return Mark::Warning;
    return Mark::None;
}

QStringList BasicEditor::messagesOfLine(int line) const
{
    QStringList messages;
    for (const auto *list : {&m_errors, &m_warnings}) {
        for (const BasicDiagnostic &d : *list) {
            if (d.line == line)
                messages << d.message;
        }
    }
    return messages;
}

int BasicEditor::lineAt(int y) const
{
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF box = blockBox(block);
        if (y < box.top())
            return 0;
        if (y < box.bottom())
            return block.blockNumber() + 1;
    }
    return 0;
}

QRectF BasicEditor::blockBox(const QTextBlock &block) const
{
    return blockBoundingGeometry(block).translated(contentOffset());
}

void BasicEditor::updateMarginWidth()
{
    setViewportMargins(m_margin->marginWidth(), 0, 0, 0);
}

void BasicEditor::updateMargin(const QRect &rect, int dy)
{
    if (dy)
        m_margin->scroll(0, dy);
    else
        m_margin->update(0, rect.y(), m_margin->width(), rect.height());
}

void BasicEditor::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect area = contentsRect();
    m_margin->setGeometry(area.left(), area.top(), m_margin->marginWidth(), area.height());
}

void BasicEditor::contextMenuEvent(QContextMenuEvent *event)
{
    emit contextMenuRequested(event->globalPos());
    event->accept();
}

// Each error's token, or its one character, gets a wavy underline.
void BasicEditor::showErrorUnderlines()
{
    QList<QTextEdit::ExtraSelection> selections;
    for (const BasicDiagnostic &d : m_errors) {
        const QTextBlock block = document()->findBlockByNumber(d.line - 1);
        if (!block.isValid())
            continue;
        const QString text = block.text();
        int start = std::clamp(d.column - 1, 0, int(text.size()));
        int end = start;
        while (end < text.size() && (text[end].isLetterOrNumber() || text[end] == u'_'))
            ++end;
        if (end == start)
            end = qMin(start + 1, int(text.size()));
        if (end == start && start > 0)
            --start; // at the line's end: mark the last character
        QTextEdit::ExtraSelection selection;
        selection.cursor = QTextCursor(document());
        selection.cursor.setPosition(block.position() + start);
        selection.cursor.setPosition(block.position() + end, QTextCursor::KeepAnchor);
        selection.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        selection.format.setUnderlineColor(Qt::red);
        selection.format.setToolTip(d.message);
        selections << selection;
        if (selections.size() >= 500) // enough to see; a text of junk has thousands
            break;
    }
    setExtraSelections(selections);
}

bool BasicEditor::complete()
{
    m_completion = BasicCompletion::contextAt(editorText(), caretPosition());
    const QStringList words
        = BasicCompletion::words(m_completion, m_workfields ? m_workfields() : QStringList());
    if (words.isEmpty()) {
        m_completer->popup()->hide();
        return false;
    }
    m_words->setStringList(words);
    m_completer->setCompletionPrefix(m_completion.prefix);
    if (m_completer->completionCount() == 0) {
        m_completer->popup()->hide();
        return false;
    }
    QRect rect = cursorRect();
    rect.setWidth(m_completer->popup()->sizeHintForColumn(0)
                  + m_completer->popup()->verticalScrollBar()->sizeHint().width());
    m_completer->popup()->setCurrentIndex(m_completer->completionModel()->index(0, 0));
    m_completer->complete(rect);
    return true;
}

void BasicEditor::insertCompletion(const QString &word)
{
    const int caret = caretPosition();
    if (m_completion.kind == CompletionKind::None || m_completion.start > caret)
        return;
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.setPosition(m_completion.start);
    cursor.setPosition(caret, QTextCursor::KeepAnchor);
    cursor.insertText(word);
    // A name inside a string gets its closing quote when the line has none yet.
    const bool inString = m_completion.kind != CompletionKind::QuorinMember;
    if (inString && document()->characterAt(cursor.position()) != u'"')
        cursor.insertText(QStringLiteral("\""));
    cursor.endEditBlock();
    setTextCursor(cursor);
    m_completion = {};
}

bool BasicEditor::findNext(const QString &text)
{
    if (text.isEmpty())
        return false;
    m_lastFind = text;
    if (find(text))
        return true;
    // Wrap round once from the top.
    const QTextCursor saved = textCursor();
    setCaretPosition(0);
    if (find(text))
        return true;
    setTextCursor(saved);
    return false;
}

void BasicEditor::askFind()
{
    bool ok = false;
    const QString text = QInputDialog::getText(this,
                                               QStringLiteral("Find"),
                                               QStringLiteral("Find what:"),
                                               QLineEdit::Normal,
                                               m_lastFind,
                                               &ok);
    if (ok)
        findNext(text);
}

void BasicEditor::keyPressEvent(QKeyEvent *event)
{
    if (m_completer->popup()->isVisible()) {
        switch (event->key()) {
        case Qt::Key_Enter:
        case Qt::Key_Return:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Escape:
            // The list takes them.
            event->ignore();
            return;
        default:
            break;
        }
    }
    if (event->key() == Qt::Key_Space && event->modifiers() & Qt::ControlModifier) {
        complete();
        return;
    }
    if (event->matches(QKeySequence::Find)) {
        askFind();
        return;
    }
    if (event->matches(QKeySequence::FindNext)) {
        findNext(m_lastFind);
        return;
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        && !(event->modifiers() & ~Qt::KeypadModifier)) {
        // The new line starts where the last one did.
        const QString line = textCursor().block().text();
        qsizetype indent = 0;
        while (indent < line.size() && (line[indent] == u' ' || line[indent] == u'\t'))
            ++indent;
        textCursor().insertText(QStringLiteral("\n") + line.left(indent));
        ensureCursorVisible();
        return;
    }

    QPlainTextEdit::keyPressEvent(event);

    const QString typed = event->text();
    if (typed.isEmpty() || event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
        if (event->key() != Qt::Key_Backspace)
            m_completer->popup()->hide();
        else if (m_completer->popup()->isVisible())
            complete();
        return;
    }
    const QChar c = typed.back();
    if (c.isLetterOrNumber() || c == u'.' || c == u'"' || c == u'_' || c == u' ' || c == u',')
        complete();
    else
        m_completer->popup()->hide();
}
