#include "editors/SeverityEditorForm.h"

#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "rulebase/SeverityItem.h"

#include <cmath>
#include <limits>

namespace {
constexpr const char *module = "frmSeverityEditor";
}

void SeverityEditorForm::Load()
{
    guardedVoid("Form_Load", module, [this] {
        if (!m_item || m_item->Title().isEmpty())
            return;
        m_title = m_item->Title();
        m_impact = QString::number(m_item->Impact());
        m_description = m_item->Description();
        m_colour = m_item->Colour();
    });
}

bool SeverityEditorForm::OK()
{
    if (!CanOK())
        return false;
    return guardedVoid("cmdOK_Click", module, [this] {
        if (!m_item)
            throw QuorinError::objectNotSet(QStringLiteral("frmSeverityEditor::cmdOK_Click"));
        // The impact is converted first, so that one too large for 16 bits writes nothing.
        const double value = std::nearbyint(Text::val(m_impact));
        if (value < std::numeric_limits<qint16>::min()
            || value > std::numeric_limits<qint16>::max())
            throw QuorinError::overflow(QStringLiteral("frmSeverityEditor::cmdOK_Click"));
        m_item->setTitle(m_title);
        m_item->setImpact(qint16(value));
        m_item->setDescription(m_description);
        m_item->setColour(m_colour);
        m_cancelled = false;
    });
}
