#pragma once

class QIcon;

// The pictures the rulebase-wide dialogs show, taken from the main window's image lists: the
// severity colours (numbered from 1), the category folders and the default violations' items.
namespace DialogImages {

QIcon severityIcon(int image);
QIcon folderIcon(bool hidden);
QIcon violationIcon(int type);

} // namespace DialogImages
