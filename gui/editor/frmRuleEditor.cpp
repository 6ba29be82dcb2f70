#include "gui/editor/frmRuleEditor.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

frmRuleEditor::frmRuleEditor(QWidget *parent)
    : QDialog(parent)
    , m_text(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("frmRuleEditor"));
    setWindowTitle(QStringLiteral("Condition Editor"));
    m_text->setObjectName(QStringLiteral("sbMain"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(buttons);
}

frmRuleEditor::~frmRuleEditor() = default;

QString frmRuleEditor::RuleCode() const
{
    return m_text->toPlainText();
}

void frmRuleEditor::setRuleCode(const QString &code)
{
    m_text->setPlainText(code);
}

int frmRuleEditor::exec()
{
    const int result = QDialog::exec();
    m_cancelled = result != QDialog::Accepted;
    return result;
}
