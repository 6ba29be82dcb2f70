#include "views/CommandTable.h"
#include "application/Application.h"
#include "application/ToolDispatcher.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include "support/MemoryMainForm.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CommandTable, EveryBandNamesKnownToolsAndEverySubMenuExists)
{
    QSet<QString> placed;
    for (const BandDefinition &band : CommandTable::bands()) {
        for (const char *id : band.tools) {
            const QString tool = QLatin1String(id);
            if (tool == "-"_L1 || tool == QLatin1String(CommandTable::recentFilesAnchor))
                continue;
            EXPECT_NE(CommandTable::findTool(tool), nullptr) << band.id << " names " << id;
            placed << tool.toLower();
        }
    }
    for (const ToolDefinition &tool : CommandTable::tools()) {
        if (tool.opensBand) {
            EXPECT_NE(CommandTable::findBand(QLatin1String(tool.opensBand)), nullptr) << tool.id;
        }
        // Every tool can be reached somewhere, but the view that does not exist.
        if (QLatin1String(tool.id) != "tlDocumentationConventions"_L1) {
            EXPECT_TRUE(placed.contains(QString::fromLatin1(tool.id).toLower()))
                << tool.id << " is on no band";
        }
    }
    // Only the views and the window parts that are shown or hidden carry a check mark.
    for (const ToolDefinition &tool : CommandTable::tools()) {
        const QString id = QLatin1String(tool.id);
        const bool windowPart
            = id.endsWith("Toolbar"_L1) || id.endsWith("Bar"_L1) || id.endsWith("Window"_L1);
        EXPECT_EQ(tool.checkable, windowPart || createView(id) != nullptr) << tool.id;
    }
    EXPECT_EQ(CommandTable::findTool(u"TLDELETERULE"_s)->toolbarCaption,
              std::string_view("&Delete Rule"));
    EXPECT_EQ(CommandTable::findTool(u"nothing"_s), nullptr);
}

TEST(ToolDispatcher, ToolsReachTheApplicationAndWindowToolsAreLeftToTheWindow)
{
    ScriptedUserInterface ui;
    MemoryMainForm form;
    Application app(&form);

    EXPECT_TRUE(ExecuteTool(app, u"tlSeverityView"_s));
    EXPECT_EQ(app.CurrentViewName(), u"tlSeverityView"_s);
    EXPECT_TRUE(ExecuteTool(app, u"TLABOUT"_s));
    EXPECT_TRUE(form.calls.contains(u"About"_s));

    for (const char *id :
         {"tlExit", "tlExpandAll", "tlQuorinBar", "tlDocumentationConventions", "tlNoSuchTool"})
        EXPECT_FALSE(ExecuteTool(app, QLatin1String(id))) << id;

    // An open from the dialog or the recent list puts the file at the top of the list.
    const QString path = TestEnvironment::makeTempDir() + u"/r.qrb"_s;
    ASSERT_TRUE(RulebaseManager().Save(*std::make_shared<Rulebase>(), path));
    ui.openAnswers = {path};
    form.calls.clear();
    EXPECT_TRUE(ExecuteTool(app, u"tlOpenRulebase"_s));
    EXPECT_TRUE(form.calls.contains(u"AddToMRUList "_s + path));
    form.calls.clear();
    EXPECT_TRUE(OpenRecentFile(app, path));
    EXPECT_TRUE(form.calls.contains(u"AddToMRUList "_s + path));
    EXPECT_FALSE(OpenRecentFile(app, path + u".gone"_s));
    EXPECT_TRUE(ui.messages.back().text.startsWith(u"Can't find the rulebase"_s));
}
