#pragma once

#include <QString>

class Rulebase;

// Every stored field of a rulebase as text, one line each, in a fixed order, so that two models
// compare as equal exactly when a test's diff of their dumps is empty.
QString dumpRulebase(const Rulebase &rulebase);
