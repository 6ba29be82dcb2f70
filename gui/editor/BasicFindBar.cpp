#include "gui/editor/BasicFindBar.h"

#include "gui/editor/BasicEditor.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextBlock>
#include <QToolButton>

namespace {

// Tool buttons rather than push buttons: in a dialog, a push button would take Enter away from
// the text fields as the default button.
QToolButton *button(const char *name, const QString &text, QWidget *parent)
{
    auto *b = new QToolButton(parent);
    b->setObjectName(QLatin1String(name));
    b->setText(text);
    b->setAutoRaise(true);
    return b;
}

} // namespace

BasicFindBar::BasicFindBar(BasicEditor *editor, QWidget *parent)
    : QWidget(parent)
    , m_editor(editor)
    , m_find(new QLineEdit(this))
    , m_replace(new QLineEdit(this))
    , m_matchCase(new QCheckBox(tr("Match &case"), this))
    , m_wholeWord(new QCheckBox(tr("&Whole word"), this))
    , m_result(new QLabel(this))
{
    setObjectName(QStringLiteral("fraFind"));
    m_find->setObjectName(QStringLiteral("txtFind"));
    m_replace->setObjectName(QStringLiteral("txtReplace"));
    m_matchCase->setObjectName(QStringLiteral("chkMatchCase"));
    m_wholeWord->setObjectName(QStringLiteral("chkWholeWord"));
    m_result->setObjectName(QStringLiteral("lblFindResult"));

    auto *findLabel = new QLabel(tr("Fi&nd:"), this);
    findLabel->setBuddy(m_find);
    auto *replaceLabel = new QLabel(tr("Re&place:"), this);
    replaceLabel->setBuddy(m_replace);
    QToolButton *next = button("cmdFindNext", tr("Next"), this);
    QToolButton *previous = button("cmdFindPrevious", tr("Previous"), this);
    QToolButton *replaceOne = button("cmdReplace", tr("Replace"), this);
    QToolButton *replaceEvery = button("cmdReplaceAll", tr("Replace All"), this);
    QToolButton *close = button("cmdCloseFind", QStringLiteral("\u2715"), this);
    close->setToolTip(tr("Close (Esc)"));

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(4, 2, 4, 2);
    grid->setVerticalSpacing(2);
    grid->addWidget(findLabel, 0, 0);
    grid->addWidget(m_find, 0, 1);
    grid->addWidget(next, 0, 2);
    grid->addWidget(previous, 0, 3);
    grid->addWidget(m_matchCase, 0, 4);
    grid->addWidget(m_wholeWord, 0, 5);
    grid->addWidget(m_result, 0, 6);
    grid->addWidget(close, 0, 7, Qt::AlignRight);
    grid->addWidget(replaceLabel, 1, 0);
    grid->addWidget(m_replace, 1, 1);
    grid->addWidget(replaceOne, 1, 2);
    grid->addWidget(replaceEvery, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(6, 1);
    m_replaceRow = {replaceLabel, m_replace, replaceOne, replaceEvery};

    connect(next, &QToolButton::clicked, this, &BasicFindBar::findNext);
    connect(previous, &QToolButton::clicked, this, &BasicFindBar::findPrevious);
    connect(replaceOne, &QToolButton::clicked, this, &BasicFindBar::replace);
    connect(replaceEvery, &QToolButton::clicked, this, &BasicFindBar::replaceAll);
    connect(close, &QToolButton::clicked, this, [this] {
        hide();
        m_editor->setFocus();
    });
    connect(m_find, &QLineEdit::returnPressed, this, [this] {
        if (QGuiApplication::keyboardModifiers() & Qt::ShiftModifier)
            findPrevious();
        else
            findNext();
    });
    connect(m_find, &QLineEdit::textEdited, this, &BasicFindBar::findAsTyped);
    connect(m_replace, &QLineEdit::returnPressed, this, &BasicFindBar::replace);
    hide();
}

void BasicFindBar::start(bool replace)
{
    const QString selected = m_editor->textCursor().selectedText();
    // A selection over lines is no word to find.
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
        m_find->setText(selected);
    for (QWidget *w : std::as_const(m_replaceRow))
        w->setVisible(replace);
    report({});
    show();
    m_find->setFocus();
    m_find->selectAll();
}

QTextDocument::FindFlags BasicFindBar::flags() const
{
    QTextDocument::FindFlags result;
    if (m_matchCase->isChecked())
        result |= QTextDocument::FindCaseSensitively;
    if (m_wholeWord->isChecked())
        result |= QTextDocument::FindWholeWords;
    return result;
}

bool BasicFindBar::findNext()
{
    const bool found = m_editor->findText(m_find->text(), flags());
    report(found ? QString() : tr("Not found"));
    return found;
}

bool BasicFindBar::findPrevious()
{
    const bool found = m_editor->findText(m_find->text(), flags() | QTextDocument::FindBackward);
    report(found ? QString() : tr("Not found"));
    return found;
}

void BasicFindBar::replace()
{
    const bool found = m_editor->replaceNext(m_find->text(), m_replace->text(), flags());
    report(found ? QString() : tr("Not found"));
}

void BasicFindBar::replaceAll()
{
    const int count = m_editor->replaceAll(m_find->text(), m_replace->text(), flags());
    report(tr("%n replaced", nullptr, count));
}

// Each change of the text looks again from where the last match began.
void BasicFindBar::findAsTyped()
{
    QTextCursor cursor = m_editor->textCursor();
    cursor.setPosition(cursor.selectionStart());
    m_editor->setTextCursor(cursor);
    if (!m_find->text().isEmpty())
        findNext();
    else
        report({});
}

void BasicFindBar::report(const QString &text)
{
    m_result->setText(text);
}

// Escape belongs to the bar while it has the focus, not to the dialog around it.
bool BasicFindBar::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void BasicFindBar::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        hide();
        m_editor->setFocus();
        event->accept();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept(); // handled by the fields; the dialog has no default button to press
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}
