#include "preview/TagLookup.h"

#include "collections/ObjectKeyedArrayList.h"
#include "preview/CatalogueObject.h"
#include "preview/DeclaredObject.h"
#include "rulebase/Rulebase.h"
#include "rulebase/TagItem.h"

namespace {

QHash<QString, QString> tagsOf(const ObjectKeyedArrayList<TagItem> &list)
{
    QHash<QString, QString> tags;
    for (qint32 i = 1; i <= list.Count(); ++i) {
        const auto item = list.Item(i);
        if (item && !tags.contains(item->TagName().toLower()))
            tags.insert(item->TagName().toLower(), item->TagValue());
    }
    return tags;
}

// The bracketed data type entry that stands for what a file or declaration makes a type of.
QString typeCategory(qint32 objectType)
{
    switch (objectType) {
    case CatalogueObject::ClassFile:
        return QStringLiteral("(Classes)");
    case CatalogueObject::FormFile:
    case CatalogueObject::MDIChildFormFile:
    case CatalogueObject::NonMDIFormFile:
        return QStringLiteral("(Forms)");
    case CatalogueObject::MDIFormFile:
        return QStringLiteral("(MDI Forms)");
    case CatalogueObject::DesignerFile:
        return QStringLiteral("(Designers)");
    case CatalogueObject::PropertyPageFile:
        return QStringLiteral("(Property Pages)");
    case CatalogueObject::UserControlFile:
        return QStringLiteral("(User Controls)");
    case CatalogueObject::UserDocumentFile:
        return QStringLiteral("(User Documents)");
    case CatalogueObject::Enum:
        return QStringLiteral("(Enumerations)");
    case CatalogueObject::Type:
        return QStringLiteral("(User-Defined Types)");
    default:
        return {};
    }
}

// The ProgID a file's layout object has.
QString layoutProgID(qint32 objectType)
{
    switch (objectType) {
    case CatalogueObject::FormFile:
    case CatalogueObject::MDIChildFormFile:
    case CatalogueObject::NonMDIFormFile:
        return QStringLiteral("VB.Form");
    case CatalogueObject::MDIFormFile:
        return QStringLiteral("VB.MDIForm");
    case CatalogueObject::PropertyPageFile:
        return QStringLiteral("VB.PropertyPage");
    case CatalogueObject::UserControlFile:
        return QStringLiteral("VB.UserControl");
    case CatalogueObject::UserDocumentFile:
        return QStringLiteral("VB.UserDocument");
    default:
        return {};
    }
}

QString withArticle(const QString &word)
{
    const bool vowel = !word.isEmpty() && QStringLiteral("AEIOUaeiou").contains(word[0]);
    return (vowel ? QStringLiteral("an ") : QStringLiteral("a ")) + word;
}

QString unqualified(const QString &type)
{
    return type.mid(type.lastIndexOf(QLatin1Char('.')) + 1);
}

} // namespace

TagLookup::TagLookup(const Rulebase &rulebase)
    : m_controlTags(tagsOf(*rulebase.ControlTags()))
    , m_dataTypeTags(tagsOf(*rulebase.DataTypeTags()))
    , m_scopeTags(tagsOf(*rulebase.ScopeTags()))
    , m_arrayTag(rulebase.ArrayTag())
    , m_controlTagsAsDataTypeTags(rulebase.UseCTagsAsDTTags())
{
}

void TagLookup::learn(const DeclaredObject &object)
{
    const QString category = typeCategory(object.objectType);
    if (!category.isEmpty() && !object.name.isEmpty())
        m_projectTypes.insert(object.name.toLower(), category);
}

const QString *TagLookup::controlTagOf(const QString &progID) const
{
    auto found = m_controlTags.constFind(progID.toLower());
    if (found == m_controlTags.constEnd() && !progID.contains(QLatin1Char('.')))
        found = m_controlTags.constFind(QStringLiteral("vb.") + progID.toLower());
    return found == m_controlTags.constEnd() ? nullptr : &*found;
}

TagLookup::Tag TagLookup::controlTag(const DeclaredObject &object) const
{
    QString progID = object.objectType == CatalogueObject::Control
                         ? object.progID
                         : layoutProgID(object.objectType);
    if (!progID.isEmpty()) {
        if (const QString *tag = controlTagOf(progID))
            return {*tag, withArticle(progID), true};
        return {
            m_controlTags.value(QStringLiteral("(unknown progid)")), withArticle(progID), false};
    }
    if (const QString *tag = controlTagOf(object.dataType))
        return {*tag, withArticle(object.dataType), true};
    return {QString(), QString(), false};
}

TagLookup::Tag TagLookup::dataTypeTag(const DeclaredObject &object) const
{
    auto entry = [&](const QString &name, const QString &what) -> Tag {
        const auto found = m_dataTypeTags.constFind(name.toLower());
        if (found == m_dataTypeTags.constEnd())
            return {QString(), what, false};
        return {*found, what, true};
    };
    if (object.objectType == CatalogueObject::Control) {
        if (m_controlTagsAsDataTypeTags)
            return controlTag(object);
        return entry(QStringLiteral("(Controls)"), withArticle(object.progID));
    }
    const QString type = object.dataType;
    if (type.isEmpty()) {
        const QString category = typeCategory(object.objectType);
        if (category.isEmpty())
            return {QString(), QString(), false};
        return entry(category, category);
    }
    const QString what = withArticle(type);
    for (const QString &name : {type, unqualified(type)}) {
        const auto found = m_dataTypeTags.constFind(name.toLower());
        if (found != m_dataTypeTags.constEnd())
            return {*found, what, true};
    }
    const auto projectType = m_projectTypes.constFind(unqualified(type).toLower());
    if (projectType != m_projectTypes.constEnd())
        return entry(*projectType, what + QStringLiteral(" ") + *projectType);
    if (const QString *tag = controlTagOf(type)) {
        if (m_controlTagsAsDataTypeTags)
            return {*tag, what, true};
        return entry(QStringLiteral("(Controls)"), what);
    }
    return {QString(), what, false};
}

TagLookup::Tag TagLookup::scopeTag(const DeclaredObject &object) const
{
    QString name;
    switch (object.scope) {
    case DeclaredScope::Public:
        name = QStringLiteral("Public (Global)");
        break;
    case DeclaredScope::Friend:
        name = QStringLiteral("Friend");
        break;
    case DeclaredScope::Private:
        name = QStringLiteral("Private (Module level)");
        break;
    case DeclaredScope::Local:
        name = QStringLiteral("Local");
        break;
    case DeclaredScope::LocalStatic:
        name = QStringLiteral("Local (Static)");
        break;
    case DeclaredScope::ByValArgument:
        name = QStringLiteral("ByVal Argument");
        break;
    case DeclaredScope::ByRefArgument:
        name = QStringLiteral("ByRef Argument");
        break;
    case DeclaredScope::None:
        return {QString(), QString(), false};
    }
    const auto found = m_scopeTags.constFind(name.toLower());
    return {found == m_scopeTags.constEnd() ? QString() : *found,
            QStringLiteral("scope ") + name,
            found != m_scopeTags.constEnd()};
}

TagLookup::Tag TagLookup::arrayTag(const DeclaredObject &object) const
{
    if (!object.isArray)
        return {QString(), QString(), true};
    return {m_arrayTag, QStringLiteral("an array"), true};
}
