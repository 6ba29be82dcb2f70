#include "editors/CategoryEditorForm.h"

#include "platform/ErrorFrame.h"
#include "rulebase/CategoryItem.h"

namespace {
constexpr const char *module = "frmCategoryEditor";
}

void CategoryEditorForm::Load()
{
    guardedVoid("Form_Load", module, [this] {
        if (!m_item || m_item->Title().isEmpty())
            return;
        m_title = m_item->Title();
        m_description = m_item->Description();
        m_hidden = m_item->Hidden();
    });
}

bool CategoryEditorForm::OK()
{
    if (!CanOK())
        return false;
    return guardedVoid("cmdOK_Click", module, [this] {
        if (!m_item)
            throw QuorinError::objectNotSet(QStringLiteral("frmCategoryEditor::cmdOK_Click"));
        m_item->setTitle(m_title);
        m_item->setDescription(m_description);
        m_item->setHidden(m_hidden);
        m_cancelled = false;
    });
}
