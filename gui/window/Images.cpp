#include "gui/window/Images.h"

#include <QFile>
#include <QHash>

// Resources of a static library must be pulled in by name, outside any namespace.
static void initialiseResources()
{
    Q_INIT_RESOURCE(QuorinAdmin);
}

namespace Images {

namespace {

const QStringList eventTreeKeys = {
    QStringLiteral("Project"),
    QStringLiteral("Event"),
    QStringLiteral("Class"),
    QStringLiteral("Component"),
    QStringLiteral("Designer"),
    QStringLiteral("Form"),
    QStringLiteral("Module"),
    QStringLiteral("PropertyObject"),
    QStringLiteral("PropertyPage"),
    QStringLiteral("Reference"),
    QStringLiteral("RelatedDocument"),
    QStringLiteral("UserControl"),
    QStringLiteral("UserDocument"),
    QStringLiteral("Property"),
    QStringLiteral("Const"),
    QStringLiteral("Enum"),
    QStringLiteral("WithEvents"),
    QStringLiteral("Implements"),
    QStringLiteral("Variable"),
    QStringLiteral("EnumItem"),
    QStringLiteral("Declare"),
    QStringLiteral("TypeItem"),
    QStringLiteral("Type"),
    QStringLiteral("Argument"),
    QStringLiteral("LocalConst"),
    QStringLiteral("LineLabel"),
    QStringLiteral("LocalVariable"),
    QStringLiteral("ProcedureBody"),
    QStringLiteral("File"),
    QStringLiteral("Statistics"),
    QStringLiteral("Control"),
    QStringLiteral("Layout"),
    QStringLiteral("Folder"),
    QStringLiteral("PublicVariable"),
    QStringLiteral("StaticVariable"),
};

const QStringList imagesKeys = {QStringLiteral("Component"),
                                QStringLiteral("Reference"),
                                QStringLiteral("SortAscending"),
                                QStringLiteral("SortDescending"),
                                QStringLiteral("Category"),
                                QStringLiteral("Folder"),
                                QStringLiteral("Unallocated"),
                                QStringLiteral("Keyword"),
                                QStringLiteral("HiddenFolder")};

const QStringList severityKeys = {QStringLiteral("Black"),
                                  QStringLiteral("Blue"),
                                  QStringLiteral("Cyan"),
                                  QStringLiteral("DarkBlue"),
                                  QStringLiteral("DarkCyan"),
                                  QStringLiteral("DarkGreen"),
                                  QStringLiteral("DarkGrey"),
                                  QStringLiteral("DarkPurple"),
                                  QStringLiteral("DarkRed"),
                                  QStringLiteral("DarkYellow"),
                                  QStringLiteral("Green"),
                                  QStringLiteral("Grey"),
                                  QStringLiteral("Purple"),
                                  QStringLiteral("Red"),
                                  QStringLiteral("White"),
                                  QStringLiteral("Yellow"),
                                  QStringLiteral("Severity")};

// Kinds the vocabulary names that share the picture of another kind.
const QHash<QString, QString> &aliases()
{
    static const QHash<QString, QString> table = {
        {QStringLiteral("procedure"), QStringLiteral("ProcedureBody")},
        {QStringLiteral("source"), QStringLiteral("File")},
        {QStringLiteral("properties"), QStringLiteral("Property")},
        {QStringLiteral("typeelement"), QStringLiteral("TypeItem")},
        {QStringLiteral("enumelement"), QStringLiteral("EnumItem")},
        {QStringLiteral("layoutproperties"), QStringLiteral("Layout")},
        {QStringLiteral("controlproperties"), QStringLiteral("Control")},
        {QStringLiteral("declaration"), QStringLiteral("Variable")},
        {QStringLiteral("namingconvention"), QStringLiteral("Variable")},
        // The pictures of the picker's properties: tags and statistics.
        {QStringLiteral("statistic"), QStringLiteral("Statistics")},
        {QStringLiteral("controltag"), QStringLiteral("Control")},
        {QStringLiteral("datatypetag"), QStringLiteral("Type")},
        {QStringLiteral("scopetag"), QStringLiteral("PublicVariable")},
    };
    return table;
}

QString fileOf(const QString &imageList, const QString &key)
{
    if (imageList.compare(QLatin1String("ilsSeverity"), Qt::CaseInsensitive) == 0
        && key.compare(QLatin1String("Severity"), Qt::CaseInsensitive) != 0)
        return QStringLiteral(":/icons/severity-") + key + QStringLiteral(".svg");
    return QStringLiteral(":/icons/") + key + QStringLiteral(".svg");
}

// The key as the list spells it, so that a key in another case finds its file.
QString canonical(const QStringList &list, const QString &key)
{
    for (const QString &k : list) {
        if (k.compare(key, Qt::CaseInsensitive) == 0)
            return k;
    }
    return QString();
}

QIcon load(const QString &path)
{
    static QHash<QString, QIcon> cache;
    const auto found = cache.constFind(path);
    if (found != cache.constEnd())
        return *found;
    const QIcon icon = QFile::exists(path) ? QIcon(path) : QIcon();
    cache.insert(path, icon);
    return icon;
}

} // namespace

void initialise()
{
    static const bool done = [] {
        initialiseResources();
        return true;
    }();
    Q_UNUSED(done);
}

QStringList keys(const QString &imageList)
{
    if (imageList.compare(QLatin1String("ilsEventTree"), Qt::CaseInsensitive) == 0)
        return eventTreeKeys;
    if (imageList.compare(QLatin1String("ilsImages"), Qt::CaseInsensitive) == 0)
        return imagesKeys;
    if (imageList.compare(QLatin1String("ilsSeverity"), Qt::CaseInsensitive) == 0)
        return severityKeys;
    return {};
}

QIcon icon(const QString &imageList, const QString &image)
{
    if (image.isEmpty())
        return {};
    initialise();
    if (imageList.isEmpty()) {
        for (const char *list : {"ilsImages", "ilsEventTree", "ilsSeverity"}) {
            const QIcon found = icon(QLatin1String(list), image);
            if (!found.isNull())
                return found;
        }
        return {};
    }
    const QStringList list = keys(imageList);
    bool number = false;
    const int index = image.toInt(&number);
    QString key;
    if (number) {
        if (index < 1 || index > list.size())
            return {};
        key = list.at(index - 1);
    } else {
        key = canonical(list, image);
        if (key.isEmpty())
            key = aliases().value(image.toLower());
        if (key.isEmpty())
            return {};
    }
    return load(fileOf(imageList, key));
}

QIcon severity(int colour)
{
    return icon(QStringLiteral("ilsSeverity"), QString::number(colour));
}

QIcon tool(const QString &toolId)
{
    static const QHash<QString, QString> table = {
        {QStringLiteral("tlnewrulebase"), QStringLiteral("action-new")},
        {QStringLiteral("tlopenrulebase"), QStringLiteral("action-open")},
        {QStringLiteral("tlsaverulebase"), QStringLiteral("action-save")},
        {QStringLiteral("tlsaverulebaseas"), QStringLiteral("action-save")},
        {QStringLiteral("tlrulebaseproperties"), QStringLiteral("action-properties")},
        {QStringLiteral("tlexpandall"), QStringLiteral("action-expand")},
        {QStringLiteral("tlcollapseall"), QStringLiteral("action-collapse")},
        {QStringLiteral("tlopenrule"), QStringLiteral("action-properties")},
        {QStringLiteral("tlclonerule"), QStringLiteral("action-clone")},
        {QStringLiteral("tldeleterule"), QStringLiteral("action-delete")},
        {QStringLiteral("tlcodingconvention"), QStringLiteral("Event")},
        {QStringLiteral("tlnamingconvention"), QStringLiteral("Variable")},
        {QStringLiteral("tlunauthorisedkeyword"), QStringLiteral("Keyword")},
        {QStringLiteral("tlauthorisedcomponent"), QStringLiteral("Component")},
        {QStringLiteral("tlauthorisedreference"), QStringLiteral("Reference")},
        {QStringLiteral("tladdfromproject"), QStringLiteral("Project")},
        {QStringLiteral("tlcategorylist"), QStringLiteral("Category")},
        {QStringLiteral("tlseveritylist"), QStringLiteral("Severity")},
        {QStringLiteral("tldefaultviolations"), QStringLiteral("severity-Red")},
        {QStringLiteral("tltaglists"), QStringLiteral("action-tags")},
        {QStringLiteral("tlcontroltags"), QStringLiteral("Control")},
        {QStringLiteral("tldatatags"), QStringLiteral("Type")},
        {QStringLiteral("tlscopetags"), QStringLiteral("action-tags")},
        {QStringLiteral("tlgeneratedocumentation"), QStringLiteral("action-wizard")},
        {QStringLiteral("tlpreviewproject"), QStringLiteral("action-search")},
        {QStringLiteral("tlcontents"), QStringLiteral("action-help")},
        {QStringLiteral("tlsearch"), QStringLiteral("action-search")},
        {QStringLiteral("tltipofday"), QStringLiteral("action-tip")},
        {QStringLiteral("tlabout"), QStringLiteral("action-about")},
        {QStringLiteral("tltarnweb"), QStringLiteral("action-web")},
        {QStringLiteral("tlhomepage"), QStringLiteral("action-home")},
        {QStringLiteral("tltechsupport"), QStringLiteral("action-web")},
        {QStringLiteral("tlcodingconventions"), QStringLiteral("Event")},
        {QStringLiteral("tlnamingconventions"), QStringLiteral("Variable")},
        {QStringLiteral("tlauthoriseditems"), QStringLiteral("Component")},
        {QStringLiteral("tlcategoryview"), QStringLiteral("Category")},
        {QStringLiteral("tlseverityview"), QStringLiteral("Severity")},
    };
    const QString name = table.value(toolId.toLower());
    if (name.isEmpty())
        return {};
    initialise();
    return load(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
}

} // namespace Images
