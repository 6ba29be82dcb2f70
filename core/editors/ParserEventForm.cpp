#include "editors/ParserEventForm.h"

#include "platform/UserInterface.h"
#include "vocabulary/ObjectTreeHelper.h"
#include "vocabulary/VBParserEvents.h"

const char *const ParserEventForm::caption = "Parser Event Selection";

QString ParserEventForm::ParserEvent() const
{
    const int node = m_screen.tvwEvent.selected();
    return node != 0 ? m_screen.tvwEvent.text(node) : QString();
}

void ParserEventForm::Load()
{
    RuleTree &tree = m_screen.tvwEvent.beginFill();
    if (m_ruleType == 5)
        ObjectTreeHelper().PopulateNamingConventionsTree(tree);
    else
        ObjectTreeHelper().PopulateCodingConventionsTree(tree, true);
}

void ParserEventForm::tvwEvent_NodeClick(int node)
{
    m_screen.tvwEvent.setSelected(node);
    if (node != 0)
        m_screen.txtDescription = VBParserEvents::ParserEventHelp(m_screen.tvwEvent.value(node));
}

void ParserEventForm::cmdCollapse_Click()
{
    for (int node = 1; node <= m_screen.tvwEvent.count(); ++node)
        m_screen.tvwEvent.setExpanded(node, false);
}

bool ParserEventForm::cmdOK_Click()
{
    if (m_screen.tvwEvent.selected() == 0) {
        showWarning(QStringLiteral("Please select a parser event."));
        return false;
    }
    m_cancelled = false;
    return true;
}
