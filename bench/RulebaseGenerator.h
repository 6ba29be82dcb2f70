#pragma once

#include <memory>

class Rulebase;

// A synthetic rulebase of `rules` rules, a third of each type, with realistic titles, advice
// and multi-line conditions, the same for the same seed.
std::shared_ptr<Rulebase> generateRulebase(int rules, unsigned seed = 1);
