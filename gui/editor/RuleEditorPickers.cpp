#include "gui/editor/RuleEditorPickers.h"

#include "rulebase/IRule.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ObjectListType.h"
#include "vocabulary/ObjectTreeHelper.h"
#include "vocabulary/RuleTree.h"

#include <QInputDialog>

namespace {

RuleEditorPickers::ObjectPicker &objectPicker()
{
    static RuleEditorPickers::ObjectPicker picker;
    return picker;
}

RuleEditorPickers::EventPicker &eventPicker()
{
    static RuleEditorPickers::EventPicker picker;
    return picker;
}

// One choice from a list; `editable` lets the user type a name that is not in it.
bool choose(QWidget *parent,
            const QString &caption,
            const QString &label,
            const QStringList &items,
            bool editable,
            QString &choice)
{
    bool ok = false;
    choice = QInputDialog::getItem(parent, caption, label, items, 0, editable, &ok).trimmed();
    return ok && !choice.isEmpty();
}

QString listObject(QWidget *parent, const RuleEditorPickers::ObjectRequest &request)
{
    const bool workfield = request.selectionMode == 3;
    const QString caption = workfield ? QStringLiteral("Object Workfield Selection")
                                      : QStringLiteral("Object Property Selection");
    QStringList names;
    QList<qint32> ids;
    ObjectHelper::GetObjectList(request.listType, names, ids);
    if (workfield) {
        for (qsizetype i = names.size() - 1; i >= 0; --i) {
            if (!ObjectHelper::ObjectHasWorkfields(ids[i])) {
                names.removeAt(i);
                ids.removeAt(i);
            }
        }
    }
    QString object;
    if (!choose(parent, caption, QStringLiteral("Object:"), names, false, object))
        return {};
    const qint32 objectId = ids.value(names.indexOf(object));

    QString name;
    if (workfield) {
        const QStringList known = request.workfields ? *request.workfields : QStringList();
        if (!choose(parent,
                    caption,
                    QStringLiteral("&Enter/select the name of the workfield to get."),
                    known,
                    true,
                    name))
            return {};
        if (request.workfields && !request.workfields->contains(name))
            request.workfields->append(name);
        return QLatin1Char('%') + object + QStringLiteral(".WF.") + name + QLatin1Char('%');
    }
    QStringList properties;
    QList<qint32> propertyIds;
    ObjectHelper::GetPropertyList(request.listType, objectId, properties, propertyIds);
    // Objects without a list of their own take a typed name.
    if (!choose(parent,
                caption,
                QStringLiteral("&Enter/select the name of the property to get."),
                properties,
                properties.isEmpty(),
                name))
        return {};
    return QLatin1Char('%') + object + QLatin1Char('.') + name + QLatin1Char('%');
}

void collect(const RuleTree &tree, int node, int depth, QStringList &shown, QStringList &texts)
{
    shown << QString(depth * 4, QLatin1Char(' ')) + tree.node(node).text;
    texts << tree.node(node).text;
    for (const int child : tree.node(node).children)
        collect(tree, child, depth + 1, shown, texts);
}

QString listEvent(QWidget *parent, qint32 ruleType)
{
    RuleTree tree;
    ObjectTreeHelper helper;
    if (ruleType == RuleTypes::NamingConvention)
        helper.PopulateNamingConventionsTree(tree);
    else
        helper.PopulateCodingConventionsTree(tree, true);
    QStringList shown;
    QStringList texts;
    for (const int node : tree.topLevel())
        collect(tree, node, 0, shown, texts);
    bool ok = false;
    const QString choice = QInputDialog::getItem(parent,
                                                 QStringLiteral("Parser Event Selection"),
                                                 QStringLiteral("Parser event:"),
                                                 shown,
                                                 0,
                                                 false,
                                                 &ok);
    return ok ? texts.value(shown.indexOf(choice)) : QString();
}

} // namespace

namespace RuleEditorPickers {

QString pickObject(QWidget *parent, const ObjectRequest &request)
{
    return objectPicker() ? objectPicker()(parent, request) : listObject(parent, request);
}

QString pickParserEvent(QWidget *parent, qint32 ruleType)
{
    return eventPicker() ? eventPicker()(parent, ruleType) : listEvent(parent, ruleType);
}

void setObjectPicker(ObjectPicker picker)
{
    objectPicker() = std::move(picker);
}

void setEventPicker(EventPicker picker)
{
    eventPicker() = std::move(picker);
}

} // namespace RuleEditorPickers
