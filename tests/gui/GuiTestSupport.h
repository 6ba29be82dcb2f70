#pragma once

#include <QString>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>

class QDialog;

// Runs `act` on the modal dialog of this name once it is up, without blocking the test: a
// dialog that never comes fails, and one that `act` leaves open is closed with a failure.
void whenModal(const QString &name, std::function<void(QDialog &)> act);

// A child widget by objectName; a missing one fails the test.
template<typename T>
T *child(QWidget &parent, const char *name)
{
    T *widget = parent.findChild<T *>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
}

// Clicks the push button of this objectName.
void click(QWidget &parent, const char *button);

// Keys as a person types them, one press and release each; "\n" is Return.
void typeKeys(QWidget *widget, const QString &text);
// Runs the event loop until `done` holds, five seconds at most; gives what `done` last said.
bool waitFor(const std::function<bool()> &done);

#include "support/ScriptedUserInterface.h"

#include <memory>

class Application;
class GuiFormFactory;
class IRule;
class Rulebase;
class frmMain;

// The main window with the real dialogs over a copy of the sample, opened as the program
// starts it, and a scripted person. Tests may save the copy (`file`).
class GuiSample : public ::testing::Test
{
protected:
    GuiSample();
    ~GuiSample() override;
    void SetUp() override;
    void TearDown() override;
    // Triggers the main window's tool of this name, which must be enabled.
    void trigger(const char *tool);
    // The first convention of the rulebase that `match` takes, or null.
    std::shared_ptr<IRule> firstRule(const std::function<bool(const IRule &)> &match) const;

    ScriptedUserInterface ui;
    QString file;
    std::unique_ptr<frmMain> window;
    std::unique_ptr<Application> app;
    std::unique_ptr<GuiFormFactory> forms;
    std::shared_ptr<Rulebase> rulebase;
};
