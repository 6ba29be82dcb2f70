#include "editors/AddFromProject.h"

#include "editors/AddFromProjectForm.h"
#include "editors/IFormFactory.h"
#include "platform/ErrorFrame.h"
#include "platform/FileUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"

namespace {
constexpr const char *module = "AddFromProject";
} // namespace

void AddFromProject::ShowDialog(std::shared_ptr<Rulebase> rulebase)
{
    guardedVoid("ShowDialog", module, [&] {
        m_candidates.setRulebase(std::move(rulebase));
        AddFromProjectForm form(*this);
        IFormFactory::current().runAddFromProject(form);
        m_cancelled = form.Cancelled();
    });
}

void AddFromProject::ParseSingleFile(const QString &filename)
{
    guardedVoid("ParseSingleFile", module, [&] {
        const qint32 components = ComponentList()->Count();
        const qint32 references = ReferenceList()->Count();
        m_candidates.AddFile(filename);
        ShowNewItems(ComponentList()->Count() - components,
                     ReferenceList()->Count() - references,
                     FileUtils::FilenameFromFullPathName(filename));
    });
}

void AddFromProject::ParseFileList(const std::optional<QStringList> &files,
                                   std::shared_ptr<Rulebase> rulebase)
{
    guardedVoid("ParseFileList", module, [&] {
        m_candidates.setRulebase(std::move(rulebase));
        if (files) {
            for (const QString &filename : *files)
                m_candidates.AddFile(filename);
            ShowNewItems(ComponentList()->Count(), ReferenceList()->Count(), QString());
        }
        if (ComponentList()->Count() + ReferenceList()->Count() > 0)
            ShowDialog(m_candidates.rulebase());
    });
}

void AddFromProject::ShowNewItems(qint32 components, qint32 references, const QString &project)
{
    UserInterface::current().messageBox(NewItemsMessage(components, references, project),
                                        MessageButtons::OK,
                                        MessageIcon::Information,
                                        programTitle(),
                                        MessageResult::OK);
}

QString
AddFromProject::NewItemsMessage(qint32 newComponents, qint32 newReferences, const QString &project)
{
    QString text;
    if (newComponents == 0 && newReferences == 0)
        text = QStringLiteral("No new components or references were found");
    else if (newComponents > 0 && newReferences > 0)
        text = NewComponentsMessage(newComponents, true) + QStringLiteral(" and ")
               + NewReferencesMessage(newReferences, true);
    else if (newComponents > 0)
        text = NewComponentsMessage(newComponents, false);
    else
        text = NewReferencesMessage(newReferences, false);
    if (project.isEmpty())
        return text + QStringLiteral(" for the selected projects.");
    return text + QStringLiteral(" for the project '") + project + QStringLiteral("'.");
}

QString AddFromProject::NewComponentsMessage(qint32 count, bool noVerb)
{
    QString text = QString::number(count) + QStringLiteral(" new ")
                   + (count == 1 ? QStringLiteral("component") : QStringLiteral("components"));
    // No blank before the verb: the message has always read "componentwas found".
    if (!noVerb)
        text += count == 1 ? QStringLiteral("was found") : QStringLiteral("were found");
    return text;
}

QString AddFromProject::NewReferencesMessage(qint32 count, bool)
{
    // Always with its verb, which is what ends the sentence that names both kinds.
    return QString::number(count) + QStringLiteral(" new ")
           + (count == 1 ? QStringLiteral("reference was found")
                         : QStringLiteral("references were found"));
}
