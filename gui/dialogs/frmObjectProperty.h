#pragma once

#include "editors/ObjectPropertyForm.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

// Picks an object, a property or a workfield of the catalogue, over ObjectPropertyForm, and
// hands back its macro string.
class frmObjectProperty final : public QDialog
{
    Q_OBJECT

public:
    explicit frmObjectProperty(QWidget *parent = nullptr);

    ObjectPropertyForm &model() { return m_model; }
    void setObjectListType(ObjectListType listType) { m_model.setObjectListType(listType); }
    void setSelectionMode(int mode) { m_model.setSelectionMode(mode); }
    void setWorkfields(QStringList *workfields) { m_model.setWorkfields(workfields); }
    // The object to select at the start; 0 for the first of the list.
    void setObjectType(qint32 id) { m_model.setObjectType(id); }
    bool Cancelled() const { return m_model.Cancelled(); }
    QString UserSelection() const { return m_model.UserSelection(); }

    // Runs the picker modally and gives its macro string, empty when cancelled.
    static QString pick(QWidget *parent,
                        int selectionMode,
                        ObjectListType listType,
                        QStringList *workfields = nullptr,
                        qint32 objectType = 0);

    int exec() override;
    void reject() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refresh();

    ObjectPropertyForm m_model;
    QListWidget *m_lvwObject;
    QLabel *m_lblProperty;
    QListWidget *m_lvwProperty;
    QPlainTextEdit *m_txtDescription;
    QLabel *m_lblManualEntry;
    QComboBox *m_cboManualEntry;
    QPushButton *m_cmdOK;
    int m_revision = -1;
};
