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
