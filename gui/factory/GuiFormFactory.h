#pragma once

#include "editors/IFormFactory.h"

class QWidget;

// Shows the real dialogs over the main window. Each family of dialogs defines its overrides in
// its own file of this folder.
class GuiFormFactory final : public IFormFactory
{
public:
    explicit GuiFormFactory(QWidget *parent = nullptr)
        : m_parent(parent)
    {
    }
    void setParentWidget(QWidget *parent) { m_parent = parent; }
    QWidget *parentWidget() const { return m_parent; }

    std::unique_ptr<IConventionForm> createConventionForm(qint32 ruleType) override;

    bool runCategorySeverity(CategorySeverityForm &form) override;
    bool runCategoryEditor(CategoryEditorForm &form) override;
    bool runSeverityEditor(SeverityEditorForm &form) override;
    bool runDefaultViolations(DefaultViolationsForm &form) override;
    bool runRulebaseProperties(RulebasePropertiesForm &form) override;
    bool runTagList(TagListForm &form) override;

    bool runAddFromProject(AddFromProjectForm &form) override;
    bool runAuthorisedComponent(AuthorisedComponentForm &form) override;
    bool runAuthorisedReference(AuthorisedReferenceForm &form) override;

    bool runDocCreator(RulebaseDocCreatorForm &form) override;

private:
    QWidget *m_parent; // not owned: the main window
};
