#pragma once

#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/Rulebase.h"

#include <memory>

namespace EditorsTest {

// A new rulebase with the default severities and the categories "Style" (id 1) and
// "Naming" (id 2).
inline std::shared_ptr<Rulebase> rulebaseWithCategories()
{
    auto rulebase = std::make_shared<Rulebase>();
    for (const char *title : {"Style", "Naming"}) {
        auto category = std::make_shared<CategoryItem>();
        category->setTitle(QString::fromLatin1(title));
        rulebase->CategoryList()->Add(category, true);
    }
    return rulebase;
}

} // namespace EditorsTest
