#pragma once

#include "application/Application.h"
#include "views/IViewController.h"

#include <QStringList>

// A view that shows nothing and records the calls the application makes on it.
class RecordingView final : public IViewController
{
public:
    explicit RecordingView(QStringList *calls)
        : m_calls(calls)
    {
    }
    // Views for an Application, all recording into `calls`.
    static Application::ViewFactory factory(QStringList *calls)
    {
        return [calls](const QString &) { return std::make_unique<RecordingView>(calls); };
    }

    void setRulebase(std::shared_ptr<Rulebase>) override {}
    void setMainForm(IMainForm *) override {}
    void Customise() override {}
    void Populate() override { *m_calls << QStringLiteral("Populate"); }
    void DeleteItems() override {}
    void OpenItem() override {}
    void SetEnabledState() override {}
    void ResizeView() override {}
    void AddItem(const std::shared_ptr<IRule> &) override {}
    void CloneItems() override {}
    int ItemsActiveState() override { return 4; }
    void ActivateItems(bool) override {}
    void CategoryListChanged() override { *m_calls << QStringLiteral("CategoryListChanged"); }
    void SeverityListChanged() override { *m_calls << QStringLiteral("SeverityListChanged"); }

private:
    QStringList *m_calls;
};
