#pragma once

class QIcon;

// The pictures the rulebase-wide dialogs show: the severity image list (numbered from 1, each a
// colour), the category folders and the default violations' items.
namespace DialogImages {

QIcon severityIcon(int image);
QIcon folderIcon(bool hidden);
QIcon violationIcon(int type);

} // namespace DialogImages
