#include "editors/ConventionFormBase.h"

#include "basic/ConditionRules.h"
#include "basic/ScriptText.h"
#include "controls/modUIListUtils.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/CategoryList.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"

#include <cmath>
#include <limits>

ConventionFormBase::~ConventionFormBase() = default;

void ConventionFormBase::setContext(const RuleDialogContext &context)
{
    m_rulebase = context.rulebase;
    m_editCategories = context.editCategories;
}

void ConventionFormBase::setRulebase(std::shared_ptr<Rulebase> rulebase)
{
    m_rulebase = std::move(rulebase);
}

void ConventionFormBase::Load()
{
    PopulateStaticData();
    DataToScreen();
}

void ConventionFormBase::PopulateStaticData()
{
    PopulateCategories();
    PopulateOwnLists();
    PopulateSeverities();
}

void ConventionFormBase::PopulateCategories()
{
    modUIListUtils::PopulateCategoryListControl(
        common().cboCategory, m_rulebase ? m_rulebase->CategoryList().get() : nullptr);
}

void ConventionFormBase::PopulateSeverities()
{
    modUIListUtils::PopulateSeverityListControl(
        common().cboSeverity, m_rulebase ? m_rulebase->SeverityList().get() : nullptr);
}

void ConventionFormBase::CategoryToScreen(qint32 categoryID)
{
    ChoiceList &categories = common().cboCategory;
    categories.setCurrentIndex(categories.FindItemWithItemData(categoryID));
}

qint32 ConventionFormBase::CategoryFromScreen() const
{
    return common().cboCategory.currentItemData(-1);
}

void ConventionFormBase::ViolationToScreen(const ViolationDefinition &definition, bool withAdvice)
{
    CommonScreen &screen = common();
    screen.txtVTitle = definition.Title();
    screen.txtVDescription = definition.Description();
    if (definition.Severity() != 0) {
        screen.cboSeverity.setCurrentIndex(
            screen.cboSeverity.FindItemWithItemData(definition.Severity()));
        cboSeverity_Click();
        // The click brought the severity's impact; the definition's own wins here.
        screen.txtVImpact = QString::number(definition.Impact());
    } else {
        screen.cboSeverity.setCurrentIndex(0);
        cboSeverity_Click();
    }
    if (withAdvice)
        screen.txtVAdvice = definition.Advice();
}

void ConventionFormBase::ViolationFromScreen(ViolationDefinition &definition, bool withAdvice) const
{
    const CommonScreen &screen = common();
    definition.setTitle(screen.txtVTitle);
    definition.setDescription(screen.txtVDescription);
    definition.setSeverity(screen.cboSeverity.currentItemData(-1));
    definition.setImpact(NumberFromField(screen.txtVImpact));
    if (withAdvice)
        definition.setAdvice(screen.txtVAdvice);
}

std::optional<FormFault> ConventionFormBase::TitleFault(int tab, const QString &message) const
{
    if (!common().txtTitle.isEmpty())
        return std::nullopt;
    return FormFault{tab, QStringLiteral("txtTitle"), -1, message};
}

std::optional<FormFault> ConventionFormBase::ViolationTitleFault(int tab) const
{
    if (!common().txtVTitle.isEmpty())
        return std::nullopt;
    return FormFault{tab,
                     QStringLiteral("txtVTitle"),
                     -1,
                     QStringLiteral("Please enter a title for the violation.")};
}

void ConventionFormBase::cboSeverity_Click()
{
    CommonScreen &screen = common();
    if (!screen.cboSeverity.hasSelection() || !m_rulebase)
        return;
    const auto severities = m_rulebase->SeverityList();
    const QString key
        = QString::number(screen.cboSeverity.currentItemData()) + QStringLiteral("Key");
    if (!severities || !severities->Contains(key))
        return;
    const std::shared_ptr<SeverityItem> severity = severities->Item(key);
    screen.imgIcon = severity->Colour();
    screen.txtVImpact = QString::number(severity->Impact());
}

void ConventionFormBase::cmdCategory_Click()
{
    if (m_editCategories)
        m_editCategories();
    PopulateCategories();
}

bool ConventionFormBase::ScreenIsValid(const FaultMover &moveTo)
{
    m_lastFault = FirstFault();
    if (!m_lastFault)
        return true;
    if (moveTo)
        moveTo(*m_lastFault);
    if (m_lastFault->title.isEmpty())
        showWarning(m_lastFault->message);
    else
        showWarning(m_lastFault->message, m_lastFault->title);
    return false;
}

bool ConventionFormBase::cmdOK_Click(const FaultMover &moveTo)
{
    if (!ScreenIsValid(moveTo))
        return false;
    m_cancelled = false;
    DataFromScreen();
    return true;
}

QString ConventionFormBase::InsertText(const QString &text, int caret, const QString &insert)
{
    const int at = qBound(0, caret, int(text.size()));
    return text.left(at) + insert + text.mid(at);
}

std::optional<FormFault>
ConventionFormBase::ConditionFault(int tab, const QString &condition, qint32 ruleType)
{
    // The condition editor's own check and words, so a condition typed in the box can't be
    // saved when the editor would have refused it.
    const ConditionRules::ConditionCheck check
        = ConditionRules::CheckCondition(ScriptText::fromEditor(condition), ruleType);
    if (check.passed)
        return std::nullopt;
    FormFault fault{tab, QStringLiteral("txtCondition"), -1, check.message};
    if (check.syntaxError)
        fault.title = programTitle() + ConditionRules::SyntaxErrorTitleSuffix;
    fault.line = check.line;
    fault.column = check.column;
    return fault;
}

bool ConventionFormBase::CheckNumericKey(QChar key)
{
    return (key >= QLatin1Char('0') && key <= QLatin1Char('9')) || key == QChar(8);
}

qint16 ConventionFormBase::NumberFromField(const QString &text)
{
    const double value = std::round(Text::val(text));
    if (value > std::numeric_limits<qint16>::max())
        return std::numeric_limits<qint16>::max();
    if (value < std::numeric_limits<qint16>::min())
        return std::numeric_limits<qint16>::min();
    return qint16(value);
}
