#include "rulebase/DefaultViolations.h"

#include "rulebase/ViolationDefinition.h"

namespace {

struct DefaultText
{
    const char *title;
    const char *description;
    const char *advice;
    const char *violationDescription;
};

const DefaultText defaults[] = {
    {"Unauthorised Component",
     "The component '%Component.Filename%' has been detected in file %File.Filename% but is not "
     "an authorised component.",
     "This component must be authorised for use before it can be utilised by a project.",
     "Enter details of the violation to be raised whenever an unauthorised component is "
     "detected."},
    {"Unauthorised Component Version",
     "Version '%Component.Version%' of the component '%Component.Filename%' is not authorised for "
     "use by projects.",
     "Ensure the project is amended to use an authorised component version i.e. having a version "
     "number in the following list: %Component.AuthorisedVersions%.",
     "Enter details of the violation to be raised whenever an unauthorised component version is "
     "detected."},
    {"Unauthorised Reference",
     "A reference to '%Reference.Description%' has been detected in %Project.Filename% but is not "
     "an authorised reference.",
     "The ActiveX component library '%Reference.Description%' must be authorised before it can be "
     "utilised by a project.",
     "Enter details of the violation to be raised whenever an unauthorised reference is "
     "detected."},
    {"Unauthorised Reference Version",
     "Version '%Reference.Version%' of the ActiveX library '%Reference.Description%' is not "
     "authorised for use by projects.",
     "Ensure the project is amended to use an authorised library version i.e. having a version "
     "number in the following list: %Reference.AuthorisedVersions%.",
     "Enter details of the violation to be raised whenever an unauthorised reference version is "
     "detected."},
    {"Unknown Control",
     "",
     "",
     "Enter details of the violation to be raised when an unknown control ProgID is detected "
     "during enforcement of a naming convention which uses control tags."},
};

} // namespace

DefaultViolations::DefaultViolations()
{
    for (const DefaultText &text : defaults) {
        auto definition = std::make_shared<ViolationDefinition>();
        definition->setTitle(QString::fromUtf8(text.title));
        definition->setDescription(QString::fromUtf8(text.description));
        definition->setAdvice(QString::fromUtf8(text.advice));
        definition->setViolationDescription(QString::fromUtf8(text.violationDescription));
        definition->setSeverity(1);
        definition->setImpact(900);
        definition->setCategoryID(-1);
        m_items.Add(std::move(definition));
    }
}

bool DefaultViolations::Dirty() const
{
    for (qint32 i = 1; i <= m_items.Count(); ++i) {
        if (m_items.Item(i)->Dirty())
            return true;
    }
    return false;
}

void DefaultViolations::setDirty(bool dirty)
{
    for (qint32 i = 1; i <= m_items.Count(); ++i)
        m_items.Item(i)->setDirty(dirty);
}

std::shared_ptr<ViolationDefinition> DefaultViolations::Item(qint32 index) const
{
    return m_items.Item(index);
}

std::shared_ptr<ViolationDefinition> DefaultViolations::ItemByType(qint32 type) const
{
    if (type < 1 || type > m_items.Count())
        return nullptr;
    return m_items.Item(type);
}
