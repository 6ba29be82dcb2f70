#pragma once

#include <QString>

#include <memory>

class Rulebase;

namespace EditorsTest {

// A new rulebase with the default severities and the categories "Style" (id 1) and
// "Naming" (id 2).
std::shared_ptr<Rulebase> rulebaseWithCategories();

} // namespace EditorsTest
