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
    "Project",       "Event",          "Class",         "Component",  "Designer",  "Form",
    "Module",        "PropertyObject", "PropertyPage",  "Reference",  "RelatedDocument",
    "UserControl",   "UserDocument",   "Property",      "Const",      "Enum",      "WithEvents",
    "Implements",    "Variable",       "EnumItem",      "Declare",    "TypeItem",  "Type",
    "Argument",      "LocalConst",     "LineLabel",     "LocalVariable", "ProcedureBody",
    "File",          "Statistics",     "Control",       "Layout",     "Folder",    "PublicVariable",
    "StaticVariable",
};

const QStringList imagesKeys = {"Component", "Reference", "SortAscending", "SortDescending",
                                "Category",  "Folder",    "Unallocated",   "Keyword",
                                "HiddenFolder"};

const QStringList severityKeys = {"Black",      "Blue",       "Cyan",      "DarkBlue",
                                  "DarkCyan",   "DarkGreen",  "DarkGrey",  "DarkPurple",
                                  "DarkRed",    "DarkYellow", "Green",     "Grey",
                                  "Purple",     "Red",        "White",     "Yellow",
                                  "Severity"};

// Kinds the vocabulary names that share the picture of another kind.
const QHash<QString, QString> &aliases()
{
    static const QHash<QString, QString> table = {
        {"procedure", "ProcedureBody"},      {"source", "File"},
        {"properties", "Property"},          {"typeelement", "TypeItem"},
        {"enumelement", "EnumItem"},         {"layoutproperties", "Layout"},
        {"controlproperties", "Control"},    {"declaration", "Variable"},
        {"namingconvention", "Variable"},
        // The pictures of the picker's properties: tags and statistics.
        {"statistic", "Statistics"},         {"controltag", "Control"},
        {"datatypetag", "Type"},             {"scopetag", "PublicVariable"},
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
        {"tlnewrulebase", "action-new"},
        {"tlopenrulebase", "action-open"},
        {"tlsaverulebase", "action-save"},
        {"tlsaverulebaseas", "action-save"},
        {"tlrulebaseproperties", "action-properties"},
        {"tlexpandall", "action-expand"},
        {"tlcollapseall", "action-collapse"},
        {"tlopenrule", "action-properties"},
        {"tlclonerule", "action-clone"},
        {"tldeleterule", "action-delete"},
        {"tlcodingconvention", "Event"},
        {"tlnamingconvention", "Variable"},
        {"tlunauthorisedkeyword", "Keyword"},
        {"tlauthorisedcomponent", "Component"},
        {"tlauthorisedreference", "Reference"},
        {"tladdfromproject", "Project"},
        {"tlcategorylist", "Category"},
        {"tlseveritylist", "Severity"},
        {"tldefaultviolations", "severity-Red"},
        {"tltaglists", "action-tags"},
        {"tlcontroltags", "Control"},
        {"tldatatags", "Type"},
        {"tlscopetags", "action-tags"},
        {"tlgeneratedocumentation", "action-wizard"},
        {"tlpreviewproject", "action-search"},
        {"tlcontents", "action-help"},
        {"tlsearch", "action-search"},
        {"tltipofday", "action-tip"},
        {"tlabout", "action-about"},
        {"tltarnweb", "action-web"},
        {"tlhomepage", "action-home"},
        {"tltechsupport", "action-web"},
        {"tlcodingconventions", "Event"},
        {"tlnamingconventions", "Variable"},
        {"tlauthoriseditems", "Component"},
        {"tlcategoryview", "Category"},
        {"tlseverityview", "Severity"},
    };
    const QString name = table.value(toolId.toLower());
    if (name.isEmpty())
        return {};
    initialise();
    return load(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
}

} // namespace Images
