#pragma once

#include <QString>

#include <memory>

class IViewController;

// The controller of a view tool id (ignoring case); nullptr for a view that has none yet.
std::unique_ptr<IViewController> createView(const QString &toolId);
