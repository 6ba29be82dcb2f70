#include "editors/ObjectPropertyForm.h"

#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ObjectListType.h"

namespace {

QString listKey(qint32 id)
{
    return QString::number(id) + QStringLiteral("KEY");
}

constexpr qint32 controlPropertiesObject = 3;
constexpr qint32 layoutPropertiesObject = 8;

} // namespace

ObjectPropertyForm::ObjectPropertyForm()
    : m_listType(ObjectListType::Everything)
{
}

QStringList ObjectPropertyForm::ManualEntryFieldList(qint32 objectId)
{
    if (objectId != controlPropertiesObject && objectId != layoutPropertiesObject)
        return {};
    QStringList names{QStringLiteral("Appearance"),
                      QStringLiteral("BackColor"),
                      QStringLiteral("BorderStyle"),
                      QStringLiteral("Caption"),
                      QStringLiteral("Enabled"),
                      QStringLiteral("ForeColor"),
                      QStringLiteral("Height"),
                      QStringLiteral("HelpContextID"),
                      QStringLiteral("Left"),
                      QStringLiteral("Name"),
                      QStringLiteral("ToolTipText"),
                      QStringLiteral("Top"),
                      QStringLiteral("Visible"),
                      QStringLiteral("Width")};
    if (objectId == controlPropertiesObject) {
        names << QStringLiteral("Alignment") << QStringLiteral("AutoSize")
              << QStringLiteral("Index") << QStringLiteral("MaskColor")
              << QStringLiteral("MaxLength") << QStringLiteral("Text")
              << QStringLiteral("UseMaskColor") << QStringLiteral("WhatsThisHelpID");
    } else {
        names << QStringLiteral("AutoRedraw") << QStringLiteral("ClipControls")
              << QStringLiteral("ControlBox") << QStringLiteral("KeyPreview")
              << QStringLiteral("MaxButton") << QStringLiteral("MinButton")
              << QStringLiteral("Moveable") << QStringLiteral("ScaleMode")
              << QStringLiteral("ShowInTaskbar") << QStringLiteral("StartUpPosition")
              << QStringLiteral("WhatsThisButton") << QStringLiteral("WhatsThisHelp")
              << QStringLiteral("WindowState");
    }
    return names;
}

void ObjectPropertyForm::Load()
{
    switch (m_mode) {
    case ObjectMode:
        m_screen.caption = QStringLiteral("Object Selection");
        m_screen.lvwPropertyVisible = false;
        break;
    case WorkfieldMode:
        m_screen.caption = QStringLiteral("Object Workfield Selection");
        m_screen.lblManualEntry = QStringLiteral("&Enter/select the name of the workfield to get.");
        m_screen.lvwPropertyVisible = false;
        m_screen.cboManualEntryItems = m_workfields ? *m_workfields : QStringList();
        break;
    case PropertyOrWorkfieldMode:
        m_screen.caption = QStringLiteral("Object Property/Workfield Selection");
        m_screen.lblManualEntry
            = QStringLiteral("&Enter/select the name of the property/workfield to get.");
        break;
    default:
        m_screen.caption = QStringLiteral("Object Property Selection");
        m_screen.lblManualEntry = QStringLiteral("&Enter/select the name of the property to get.");
        break;
    }

    QStringList names;
    QList<qint32> ids;
    ObjectHelper::GetObjectList(m_listType, names, ids);
    m_screen.lvwObject.clear();
    int wanted = 0;
    for (qsizetype i = 0; i < ids.size(); ++i) {
        m_screen.lvwObject.push_back(
            ListEntry{ids[i], names[i], listKey(ids[i]), ObjectHelper::ObjectIcon(ids[i])});
        if (m_objectType >= 1 && ids[i] == m_objectType)
            wanted = int(i);
    }
    ++m_screen.revision;
    if (!m_screen.lvwObject.empty())
        lvwObject_Click(wanted);
}

void ObjectPropertyForm::lvwObject_Click(int index)
{
    if (index < 0 || index >= int(m_screen.lvwObject.size()))
        return;
    m_screen.selectedObject = index;
    const qint32 id = m_screen.lvwObject[std::size_t(index)].id;
    m_screen.selectedProperty = -1;
    if (m_mode == PropertyMode || m_mode == PropertyOrWorkfieldMode) {
        m_screen.lvwProperty.clear();
        QStringList names;
        QList<qint32> ids;
        ObjectHelper::GetPropertyList(m_listType, id, names, ids);
        for (qsizetype i = 0; i < ids.size(); ++i)
            m_screen.lvwProperty.push_back(
                ListEntry{ids[i], names[i], listKey(ids[i]), ObjectHelper::PropertyIcon(ids[i])});
        if (m_mode == PropertyOrWorkfieldMode && ObjectHelper::ObjectHasWorkfields(id))
            m_screen.lvwProperty.push_back(ListEntry{workfieldsProperty,
                                                     QStringLiteral("Workfields"),
                                                     listKey(workfieldsProperty),
                                                     QString()});
    }
    ++m_screen.revision;

    if (m_mode == ObjectMode) {
        EnableManualEntryField(false);
    } else if (m_mode == WorkfieldMode) {
        m_screen.cboManualEntryEnabled = true;
    } else if (m_screen.lvwProperty.empty()) {
        m_screen.cboManualEntryEnabled = true;
        m_screen.cboManualEntryItems = ManualEntryFieldList(id);
    } else {
        EnableManualEntryField(false);
        for (std::size_t i = 0; i < m_screen.lvwProperty.size(); ++i) {
            if (m_propertyType != 0 && m_screen.lvwProperty[i].id == m_propertyType) {
                lvwProperty_Click(int(i));
                break;
            }
        }
    }
    if (m_screen.selectedProperty < 0)
        m_screen.txtDescription = ObjectHelper::ObjectDescription(id);
}

void ObjectPropertyForm::lvwProperty_Click(int index)
{
    const ListEntry *object = selectedObject();
    if (!object || index < 0 || index >= int(m_screen.lvwProperty.size()))
        return;
    m_screen.selectedProperty = index;
    const ListEntry &property = m_screen.lvwProperty[std::size_t(index)];
    if (property.id == workfieldsProperty) {
        m_screen.txtDescription
            = QStringLiteral("Enter/select the name of the workfield attached to this object.");
        m_screen.cboManualEntryEnabled = true;
        m_screen.cboManualEntryItems = m_workfields ? *m_workfields : QStringList();
        ++m_screen.revision;
    } else {
        m_screen.txtDescription = ObjectHelper::ObjectPropertyDescription(object->id, property.id);
        EnableManualEntryField(false);
    }
}

void ObjectPropertyForm::EnableManualEntryField(bool enabled)
{
    m_screen.cboManualEntryEnabled = enabled;
    if (!enabled)
        m_screen.cboManualEntry.clear();
}

bool ObjectPropertyForm::workfieldPicked() const
{
    const ListEntry *property = selectedProperty();
    return m_mode == WorkfieldMode
           || (m_mode == PropertyOrWorkfieldMode && property && property->id == workfieldsProperty);
}

void ObjectPropertyForm::cboManualEntry_LostFocus()
{
    const QString name = m_screen.cboManualEntry;
    if (name.isEmpty() || !m_workfields || !workfieldPicked())
        return;
    if (!m_workfields->contains(name)) {
        m_workfields->append(name);
        m_screen.cboManualEntryItems.append(name);
        ++m_screen.revision;
    }
}

bool ObjectPropertyForm::cmdOKEnabled() const
{
    if (!selectedObject())
        return false;
    if (m_mode == ObjectMode)
        return true;
    return m_screen.cboManualEntryEnabled ? !m_screen.cboManualEntry.isEmpty()
                                          : selectedProperty() != nullptr;
}

void ObjectPropertyForm::cmdOK_Click()
{
    cboManualEntry_LostFocus();
    m_cancelled = false;
    const ListEntry *object = selectedObject();
    const ListEntry *property = selectedProperty();
    m_objectType = object ? object->id : 0;
    m_propertyType = property ? property->id : 0;
}

void ObjectPropertyForm::cmdCancel_Click()
{
    // Leaving the hand-entry field for the button keeps a typed workfield, even on Cancel.
    cboManualEntry_LostFocus();
    m_cancelled = true;
}

QString ObjectPropertyForm::UserSelection() const
{
    const ListEntry *object = selectedObject();
    if (m_cancelled || !object)
        return QString();
    const QString percent = QStringLiteral("%");
    const QString name = object->text;
    const ListEntry *property = selectedProperty();
    switch (m_mode) {
    case ObjectMode:
        return percent + name + percent;
    case WorkfieldMode:
        return percent + name + QStringLiteral(".WF.") + m_screen.cboManualEntry + percent;
    case PropertyOrWorkfieldMode:
        if (property && property->id == workfieldsProperty)
            return percent + name + QStringLiteral(".WF.") + m_screen.cboManualEntry + percent;
        [[fallthrough]];
    default:
        return percent + name + QLatin1Char('.')
               + (property ? property->text : m_screen.cboManualEntry) + percent;
    }
}

const ObjectPropertyForm::ListEntry *ObjectPropertyForm::selectedObject() const
{
    const int i = m_screen.selectedObject;
    return (i >= 0 && i < int(m_screen.lvwObject.size())) ? &m_screen.lvwObject[std::size_t(i)]
                                                          : nullptr;
}

const ObjectPropertyForm::ListEntry *ObjectPropertyForm::selectedProperty() const
{
    const int i = m_screen.selectedProperty;
    return (i >= 0 && i < int(m_screen.lvwProperty.size())) ? &m_screen.lvwProperty[std::size_t(i)]
                                                            : nullptr;
}
