#include "GuiTestSupport.h"

#include "application/Application.h"
#include "application/Startup.h"
#include "gui/dialogs/frmDefaultViolations.h"
#include "gui/factory/GuiFormFactory.h"
#include "gui/frmMain.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "support/TestEnvironment.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

void whenModal(const QString &name, std::function<void(QDialog &)> act)
{
    auto *poll = new QTimer;
    auto clock = std::make_shared<QElapsedTimer>();
    clock->start();
    QObject::connect(poll, &QTimer::timeout, [poll, clock, name, act] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        const bool found = dialog && dialog->objectName() == name;
        if (!found && clock->elapsed() < 5000)
            return;
        poll->stop();
        poll->deleteLater();
        if (!found) {
            ADD_FAILURE() << "no dialog " << name.toStdString();
            if (dialog)
                dialog->done(QDialog::Rejected);
            return;
        }
        act(*dialog);
        if (dialog->isVisible()) {
            ADD_FAILURE() << name.toStdString() << " stayed open";
            dialog->done(QDialog::Rejected);
        }
    });
    poll->start(10);
}

void click(QWidget &parent, const char *button)
{
    if (auto *push = child<QPushButton>(parent, button))
        push->click();
}

void typeKeys(QWidget *widget, const QString &text)
{
    for (const QChar c : text) {
        const int key = c == u'\n' ? int(Qt::Key_Return) : int(c.toUpper().unicode());
        const QString keyText = c == u'\n' ? u"\r"_s : QString(c);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, keyText);
        QApplication::sendEvent(widget, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, keyText);
        QApplication::sendEvent(widget, &release);
    }
}

bool waitFor(const std::function<bool()> &done)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < 5000)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    return done();
}

GuiSample::GuiSample() = default;
GuiSample::~GuiSample() = default;

void GuiSample::SetUp()
{
    TestEnvironment::clearSettings();
    ASSERT_EQ(CreateGlobalObjects(), 0);
    gobjAdminData->setFirstUse(false);
    gobjAdminData->setDisplayTips(false);
    file = TestEnvironment::makeTempDir() + u"/Sample.qrb"_s;
    ASSERT_TRUE(QFile::copy(TestEnvironment::sampleRulebase(), file));
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
    window = std::make_unique<frmMain>(false);
    forms = std::make_unique<GuiFormFactory>(window.get());
    IFormFactory::install(forms.get());
    app = std::make_unique<Application>(window.get(), createView);
    window->setApplication(app.get());
    window->ShowWindow();
    ASSERT_TRUE(RunStartup(*app, file));
    rulebase = app->rulebase();
}

void GuiSample::TearDown()
{
    rulebase.reset();
    if (app) {
        app->TerminateApplication();
        window->setApplication(nullptr);
    }
    app.reset();
    IFormFactory::install(nullptr);
    frmDefaultViolations::setObjectPicker({});
    forms.reset();
    window.reset();
    DestroyGlobalObjects();
}

void GuiSample::trigger(const char *tool)
{
    QAction *action = window->tool(QLatin1String(tool));
    ASSERT_NE(action, nullptr) << tool;
    ASSERT_TRUE(action->isEnabled()) << tool;
    action->trigger();
}

std::shared_ptr<IRule> GuiSample::firstRule(const std::function<bool(const IRule &)> &match) const
{
    const auto all = rulebase->RuleLists()->AllConventions();
    for (qint32 i = 1; i <= all->Count(); ++i) {
        if (match(*all->Item(i)))
            return all->Item(i);
    }
    return nullptr;
}
