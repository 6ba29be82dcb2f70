#include "EditorsTestSupport.h"

#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/Rulebase.h"

namespace EditorsTest {

std::shared_ptr<Rulebase> rulebaseWithCategories()
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
