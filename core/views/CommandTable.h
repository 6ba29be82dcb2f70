#pragma once

#include <QString>
#include <QStringList>

#include <vector>

// The main window's tools and bands as data: the GUI builds its actions, menus, toolbars and
// context menus from these tables, and the dispatcher runs a tool by its id.
struct ToolDefinition
{
    const char *id;
    const char *caption;        // on menus, with its accelerator
    const char *toolbarCaption; // nullptr: the menu caption
    const char *toolTip;        // nullptr: none
    const char *opensBand;      // nullptr, or the band that the tool opens as a sub-menu
    bool checkable;
};

namespace CommandTable {
inline constexpr const char *recentFilesAnchor = "#recent";
}

enum class BandKind { MenuBar, Menu, Toolbar, NavigationBar, StatusBar, Popup };

struct BandDefinition
{
    const char *id;
    const char *caption;
    BandKind kind;
    // Tool ids in order; "-" is a separator, recentFilesAnchor the place of the recent files.
    std::vector<const char *> tools;
};

namespace CommandTable {

const std::vector<ToolDefinition> &tools();
const std::vector<BandDefinition> &bands();
// By id, ignoring case; nullptr for an unknown tool.
const ToolDefinition *findTool(const QString &id);
const BandDefinition *findBand(const QString &id);

// The five view tools, in the order of the navigation bar.
QStringList viewTools();
// Tools enabled only while a rulebase is open.
QStringList rulebaseTools();
// Tools that only the authority items view enables: off until that view stands, and off again
// when it goes.
QStringList authorisedItemTools();

} // namespace CommandTable
