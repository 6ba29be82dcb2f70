#include "project/VirtualObject.h"

#include "collections/KeyedArrayList.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "project/SourceLineStatistics.h"
#include "project/ViolationStatistics.h"

#include <cmath>

VirtualObject::VirtualObject() = default;
VirtualObject::~VirtualObject() = default;

std::shared_ptr<KeyedArrayList> VirtualObject::Properties()
{
    if (!m_properties)
        m_properties = std::make_shared<KeyedArrayList>();
    return m_properties;
}

std::shared_ptr<KeyedArrayList> VirtualObject::Workfields()
{
    if (!m_workfields)
        m_workfields = std::make_shared<KeyedArrayList>();
    return m_workfields;
}

std::shared_ptr<SourceLineStatistics> VirtualObject::LineStats()
{
    if (!m_lineStats)
        m_lineStats = std::make_shared<SourceLineStatistics>();
    return m_lineStats;
}

std::shared_ptr<ViolationStatistics> VirtualObject::ViolationStats()
{
    if (!m_violationStats)
        m_violationStats = std::make_shared<ViolationStatistics>();
    return m_violationStats;
}

bool VirtualObject::AddProperty(const QString &key, const QVariant &value)
{
    const auto properties = Properties();
    if (properties->Contains(key))
        return false;
    properties->Add(key, value, false);
    return true;
}

void VirtualObject::IncrementMemberCount(const QString &name, qint32 value)
{
    guardedVoid("IncrementMemberCount", "VirtualObject", [&] {
        const auto properties = Properties();
        if (!properties->Contains(name))
            properties->Add(name, QString(), false);
        qint32 count = value;
        if (value == 0) {
            const QVariant old = properties->Item(name);
            // The stored value is read as the runtime reads a number: text by its leading number.
            const double number
                = old.typeId() == QMetaType::QString ? Text::val(old.toString()) : old.toDouble();
            const double next = number + 1;
            if (!(next >= -2147483648.5 && next < 2147483647.5))
                throw QuorinError::overflow(QStringLiteral("VirtualObject"));
            count = static_cast<qint32>(std::nearbyint(next));
        }
        properties->setItem(name, count);
    });
}
