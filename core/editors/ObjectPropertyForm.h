#pragma once

#include <QString>
#include <QStringList>

#include <vector>

enum class ObjectListType;

// The form model of the picker of an object, a property or a workfield of the catalogue. It
// hands back a macro string: "%Object%", "%Object.Property%" or "%Object.WF.Name%".
class ObjectPropertyForm final
{
public:
    enum SelectionMode {
        ObjectMode = 1,
        PropertyMode = 2,
        WorkfieldMode = 3,
        PropertyOrWorkfieldMode = 4
    };
    // The pseudo-property that stands for an object's workfields.
    static constexpr qint32 workfieldsProperty = 1000;

    struct ListEntry
    {
        qint32 id = 0;
        QString text;
        QString key; // the id followed by "KEY"
        QString icon;
    };

    struct Screen
    {
        QString caption;
        QString lblManualEntry;
        bool lvwPropertyVisible = true;
        std::vector<ListEntry> lvwObject;
        int selectedObject = -1; // 0-based; -1 for none
        std::vector<ListEntry> lvwProperty;
        int selectedProperty = -1;
        QString txtDescription;
        bool cboManualEntryEnabled = false;
        QStringList cboManualEntryItems;
        QString cboManualEntry;
        // Grows with each refill of the property list or of the hand-entry items.
        int revision = 0;
    };

    ObjectPropertyForm();

    void setObjectListType(ObjectListType listType) { m_listType = listType; }
    void setSelectionMode(int mode) { m_mode = mode; }
    int SelectionMode() const { return m_mode; }
    // The caller's list of workfield names, which the picker extends; not owned.
    void setWorkfields(QStringList *workfields) { m_workfields = workfields; }
    // The ids to select at the start; after OK, those chosen.
    void setObjectType(qint32 id) { m_objectType = id; }
    void setPropertyType(qint32 id) { m_propertyType = id; }
    qint32 ObjectType() const { return m_objectType; }
    qint32 PropertyType() const { return m_propertyType; }
    bool Cancelled() const { return m_cancelled; }

    Screen &screen() { return m_screen; }
    const Screen &screen() const { return m_screen; }

    void Load();
    void lvwObject_Click(int index);
    void lvwProperty_Click(int index);
    // A name typed for a workfield joins the caller's list.
    void cboManualEntry_LostFocus();
    bool cmdOKEnabled() const;
    void cmdOK_Click();
    void cmdCancel_Click();
    // Empty after Cancel.
    QString UserSelection() const;

    // The design-time property names offered by hand for the objects without a property list.
    static QStringList ManualEntryFieldList(qint32 objectId);

private:
    void EnableManualEntryField(bool enabled);
    bool workfieldPicked() const;
    const ListEntry *selectedObject() const;
    const ListEntry *selectedProperty() const;

    ObjectListType m_listType;
    int m_mode = PropertyMode;
    QStringList *m_workfields = nullptr;
    qint32 m_objectType = 0;
    qint32 m_propertyType = 0;
    bool m_cancelled = true;
    Screen m_screen;
};
