#include "gui/editor/BasicEditorMargin.h"

#include "gui/editor/BasicEditor.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextBlock>
#include <QToolTip>

namespace {

constexpr int markSize = 10;

} // namespace

BasicEditorMargin::BasicEditorMargin(BasicEditor *editor)
    : QWidget(editor)
    , m_editor(editor)
{
    setObjectName(QStringLiteral("sbMargin"));
}

int BasicEditorMargin::marginWidth() const
{
    int digits = 1;
    for (int lines = qMax(1, m_editor->blockCount()); lines >= 10; lines /= 10)
        ++digits;
    return 8 + markSize + fontMetrics().horizontalAdvance(QLatin1Char('9')) * qMax(digits, 3);
}

QSize BasicEditorMargin::sizeHint() const
{
    return {marginWidth(), 0};
}

void BasicEditorMargin::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    QTextBlock block = m_editor->firstVisibleBlock();
    const int lineHeight = fontMetrics().height();
    while (block.isValid()) {
        const QRectF box = m_editor->blockBox(block);
        if (box.top() > event->rect().bottom())
            break;
        if (block.isVisible() && box.bottom() >= event->rect().top()) {
            const int line = block.blockNumber() + 1;
            const int top = int(box.top());
            painter.setPen(palette().color(QPalette::PlaceholderText));
            painter.drawText(
                0, top, width() - 4, lineHeight, Qt::AlignRight, QString::number(line));
            const BasicEditor::Mark mark = m_editor->markOfLine(line);
            if (mark != BasicEditor::Mark::None) {
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(Qt::NoPen);
                painter.setBrush(mark == BasicEditor::Mark::Error ? QColor(220, 30, 30)
                                                                  : QColor(230, 160, 0));
                painter.drawEllipse(
                    QRectF(3, top + (lineHeight - markSize) / 2.0, markSize, markSize));
                painter.setRenderHint(QPainter::Antialiasing, false);
            }
        }
        block = block.next();
    }
}

bool BasicEditorMargin::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const int line = m_editor->lineAt(help->pos().y());
        const QString text = m_editor->messagesOfLine(line).join(QLatin1Char('\n'));
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), text, this);
        return true;
    }
    return QWidget::event(event);
}
