#include "gui/editor/BasicEditor.h"

#include "basic/BasicSyntaxChecker.h"
#include "basic/ScriptEditing.h"
#include "basic/ScriptText.h"
#include "editors/RuleEditorModel.h"
#include "gui/editor/BasicEditorMargin.h"
#include "gui/editor/BasicHighlighter.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>
#include <QTimer>
#include <QToolTip>

namespace {

// Long scripts are checked less eagerly: a megabyte takes a noticeable moment.
constexpr int idleDelay = 400;
constexpr int longScriptDelay = 1500;
constexpr int longScript = 200 * 1024;
// Enough marks to see; a text of junk has thousands.
constexpr int mostUnderlines = 500;

QTextEdit::ExtraSelection selectionOf(const QTextCursor &cursor, const QTextCharFormat &format)
{
    QTextEdit::ExtraSelection selection;
    selection.cursor = cursor;
    selection.format = format;
    return selection;
}

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
    connect(
        this, &QPlainTextEdit::cursorPositionChanged, this, &BasicEditor::updateExtraSelections);
    updateMarginWidth();
    updateExtraSelections();
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

// Each error's and warning's word, or its one character, gets a wavy underline.
void BasicEditor::showErrorUnderlines()
{
    m_underlines.clear();
    const auto underline = [this](const BasicDiagnostic &d, const QColor &colour) {
        const QTextBlock block = document()->findBlockByNumber(d.line - 1);
        if (!block.isValid() || m_underlines.size() >= mostUnderlines)
            return;
        const ScriptEditing::Span span = ScriptEditing::markedSpan(block.text(), d.column);
        QTextCursor cursor(document());
        cursor.setPosition(block.position() + span.start);
        cursor.setPosition(block.position() + span.end, QTextCursor::KeepAnchor);
        QTextCharFormat format;
        format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        format.setUnderlineColor(colour);
        m_underlines << selectionOf(cursor, format);
    };
    for (const BasicDiagnostic &d : m_errors)
        underline(d, Qt::red);
    for (const BasicDiagnostic &d : m_warnings)
        underline(d, QColor(230, 160, 0));
    updateExtraSelections();
}

// The caret's line lit, the brackets of a pair beside the caret, and the error underlines.
void BasicEditor::updateExtraSelections()
{
    QList<QTextEdit::ExtraSelection> selections;
    QTextCharFormat lineFormat;
    // Tints of the palette's highlight, so that a dark scheme keeps its text readable.
    QColor lineColour = palette().color(QPalette::Highlight);
    lineColour.setAlpha(28);
    QColor pairColour = lineColour;
    pairColour.setAlpha(90);
    lineFormat.setBackground(lineColour);
    lineFormat.setProperty(QTextFormat::FullWidthSelection, true);
    QTextCursor caret = textCursor();
    caret.clearSelection();
    selections << selectionOf(caret, lineFormat);

    const QTextBlock block = caret.block();
    const QString text = block.text();
    const int column = caret.positionInBlock();
    for (const int at : {column, column - 1}) {
        const int partner = ScriptEditing::matchingBracket(text, at);
        if (partner < 0)
            continue;
        QTextCharFormat pairFormat;
        pairFormat.setBackground(pairColour);
        pairFormat.setFontWeight(QFont::Bold);
        for (const int bracket : {at, partner}) {
            QTextCursor cursor(block);
            cursor.setPosition(block.position() + bracket);
            cursor.setPosition(block.position() + bracket + 1, QTextCursor::KeepAnchor);
            selections << selectionOf(cursor, pairFormat);
        }
        break;
    }
    setExtraSelections(selections + m_underlines);
}

QString BasicEditor::diagnosticAt(int position) const
{
    const QTextBlock block = document()->findBlock(position);
    if (!block.isValid())
        return {};
    const int line = block.blockNumber() + 1;
    const int column = position - block.position();
    QStringList messages;
    for (const auto *list : {&m_errors, &m_warnings}) {
        for (const BasicDiagnostic &d : *list) {
            if (d.line != line)
                continue;
            const ScriptEditing::Span span = ScriptEditing::markedSpan(block.text(), d.column);
            if (span.start <= column && column <= span.end)
                messages << d.message;
        }
    }
    return messages.join(QLatin1Char('\n'));
}

bool BasicEditor::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QString text = diagnosticAt(cursorForPosition(help->pos()).position());
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), text, viewport());
        return true;
    }
    return QPlainTextEdit::viewportEvent(event);
}

QString BasicEditor::indentUnit() const
{
    return ScriptEditing::indentUnit(editorText());
}

void BasicEditor::editSelectedLines(const std::function<QStringList(const QStringList &)> &edit)
{
    QTextCursor cursor = textCursor();
    QTextBlock first = document()->findBlock(cursor.selectionStart());
    QTextBlock last = document()->findBlock(cursor.selectionEnd());
    // A selection that ends at a line's start leaves that line alone.
    if (last != first && cursor.selectionEnd() == last.position())
        last = last.previous();
    QStringList lines;
    for (QTextBlock b = first; b.isValid(); b = b.next()) {
        lines << b.text();
        if (b == last)
            break;
    }
    const QStringList edited = edit(lines);
    if (edited == lines)
        return;
    const bool hadSelection = cursor.hasSelection();
    const int caretInLine = cursor.positionInBlock();
    const int start = first.position();
    cursor.beginEditBlock();
    cursor.setPosition(start);
    cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    const QString text = edited.join(QLatin1Char('\n'));
    cursor.insertText(text);
    cursor.endEditBlock();
    if (hadSelection) {
        cursor.setPosition(start);
        cursor.setPosition(start + int(text.size()), QTextCursor::KeepAnchor);
    } else {
        // The caret keeps its place in the text of its one line.
        const int moved = int(edited.front().size() - lines.front().size());
        cursor.setPosition(start + std::clamp(caretInLine + moved, 0, int(edited.front().size())));
    }
    setTextCursor(cursor);
}

void BasicEditor::indentSelection()
{
    const QString unit = indentUnit();
    editSelectedLines(
        [&unit](const QStringList &lines) { return ScriptEditing::indentLines(lines, unit); });
}

void BasicEditor::outdentSelection()
{
    const QString unit = indentUnit();
    editSelectedLines(
        [&unit](const QStringList &lines) { return ScriptEditing::outdentLines(lines, unit); });
}

void BasicEditor::toggleComment()
{
    editSelectedLines(ScriptEditing::toggleComment);
}

// Tab without a selection of lines: a tab, or spaces to the next multiple of the unit's width.
void BasicEditor::insertIndent()
{
    const QString unit = indentUnit();
    QTextCursor cursor = textCursor();
    if (unit == u"\t") {
        cursor.insertText(unit);
    } else {
        const int width = int(unit.size());
        cursor.insertText(QString(width - cursor.positionInBlock() % width, u' '));
    }
    setTextCursor(cursor);
}

// Enter: the new line starts where the last one did, a level deeper inside a new block.
void BasicEditor::insertNewLine()
{
    QTextCursor cursor = textCursor();
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    cursor.insertText(QStringLiteral("\n") + ScriptEditing::newLineIndent(before, indentUnit()));
    setTextCursor(cursor);
    ensureCursorVisible();
}

// A line that has just become "End If", "Next", "Case"... moves to its block's indentation.
void BasicEditor::outdentTypedLine()
{
    QTextCursor cursor = textCursor();
    const QTextBlock block = cursor.block();
    const QString line = block.text();
    if (!ScriptEditing::endsBlock(line))
        return;
    QStringList before;
    for (QTextBlock b = document()->firstBlock(); b.isValid() && b != block; b = b.next())
        before << b.text();
    const std::optional<QString> outdented
        = ScriptEditing::outdentedAsTyped(before, line, indentUnit());
    if (!outdented)
        return;
    // Only the leading blanks change, so the caret keeps its place in the words.
    const int words = int(line.size() - line.indexOf(line.trimmed()));
    const int oldIndent = int(line.size()) - words;
    const QString newIndent = outdented->left(outdented->size() - words);
    // A step of its own: Ctrl+Z takes the outdent back and leaves the words.
    QTextCursor edit(block);
    edit.setPosition(block.position() + oldIndent, QTextCursor::KeepAnchor);
    edit.insertText(newIndent);
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

bool BasicEditor::findText(const QString &text, QTextDocument::FindFlags flags)
{
    if (text.isEmpty())
        return false;
    if (find(text, flags))
        return true;
    // Round once from the start, or from the end when going backwards.
    const QTextCursor saved = textCursor();
    QTextCursor from(document());
    if (flags & QTextDocument::FindBackward)
        from.movePosition(QTextCursor::End);
    setTextCursor(from);
    if (find(text, flags))
        return true;
    setTextCursor(saved);
    return false;
}

bool BasicEditor::replaceNext(const QString &text,
                              const QString &replacement,
                              QTextDocument::FindFlags flags)
{
    QTextCursor cursor = textCursor();
    const Qt::CaseSensitivity cs
        = flags & QTextDocument::FindCaseSensitively ? Qt::CaseSensitive : Qt::CaseInsensitive;
    if (cursor.hasSelection() && cursor.selectedText().compare(text, cs) == 0) {
        cursor.insertText(replacement);
        setTextCursor(cursor);
    }
    return findText(text, flags & ~QTextDocument::FindBackward);
}

int BasicEditor::replaceAll(const QString &text,
                            const QString &replacement,
                            QTextDocument::FindFlags flags)
{
    if (text.isEmpty())
        return 0;
    flags &= ~QTextDocument::FindBackward;
    int count = 0;
    QTextCursor edit(document());
    edit.beginEditBlock();
    for (QTextCursor found = document()->find(text, 0, flags); !found.isNull();
         found = document()->find(text, found, flags)) {
        found.insertText(replacement);
        ++count;
    }
    edit.endEditBlock();
    return count;
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
    const bool plain = !(event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    if (event->key() == Qt::Key_Tab && plain && !(event->modifiers() & Qt::ShiftModifier)) {
        // A selection is never typed over by Tab: its lines move.
        if (textCursor().hasSelection())
            indentSelection();
        else
            insertIndent();
        return;
    }
    if ((event->key() == Qt::Key_Backtab || event->key() == Qt::Key_Tab) && plain) {
        outdentSelection();
        return;
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        && !(event->modifiers() & ~Qt::KeypadModifier)) {
        insertNewLine();
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
    if (c.isLetter())
        outdentTypedLine();
    if (c.isLetterOrNumber() || c == u'.' || c == u'"' || c == u'_' || c == u' ' || c == u',')
        complete();
    else
        m_completer->popup()->hide();
}
