#include "controls/modUIListUtils.h"

#include "controls/ComboControl.h"
#include "platform/ErrorFrame.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/SeverityItem.h"

namespace modUIListUtils {

namespace {
constexpr const char *module = "modUIListUtils";

// Through the IListItem face, as every list item shows itself in a picker.
void addEntry(ComboControl &control, const IListItem &item)
{
    control.addItem(item.Title(), item.ID());
}
} // namespace

void PopulateCategoryListControl(ComboControl &control, const CategoryList *categories)
{
    guardedVoid("PopulateCategoryListControl", module, [&] {
        control.clear();
        if (!categories)
            return;
        for (qint32 i = 1; i <= categories->Count(); ++i)
            addEntry(control, *categories->Item(i));
    });
}

void PopulateSeverityListControl(ComboControl &control,
                                 const ObjectKeyedArrayList<SeverityItem> *severities)
{
    guardedVoid("PopulateSeverityListControl", module, [&] {
        control.clear();
        if (!severities)
            return;
        for (qint32 i = 1; i <= severities->Count(); ++i)
            addEntry(control, *severities->Item(i));
    });
}

} // namespace modUIListUtils
