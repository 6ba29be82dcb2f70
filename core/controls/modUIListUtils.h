#pragma once

#include "collections/ObjectKeyedArrayList.h"

class CategoryList;
class ComboControl;
class SeverityItem;

// Fill a picker with the titles of a list, each entry carrying the item's ID. A missing list
// (nullptr) leaves the picker empty.
namespace modUIListUtils {

void PopulateCategoryListControl(ComboControl &control, const CategoryList *categories);
void PopulateSeverityListControl(ComboControl &control,
                                 const ObjectKeyedArrayList<SeverityItem> *severities);

} // namespace modUIListUtils
