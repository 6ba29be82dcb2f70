#pragma once

#include <QDialog>

#include <functional>

class DefaultViolationsForm;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QToolBar;

// "Default Violations": the five violations that belong to no rule, chosen on a bar of five
// items and edited on copies; a shell over its form model.
class frmDefaultViolations final : public QDialog
{
    Q_OBJECT

public:
    // Runs the object picker and gives its "%Object.Property%" text, empty when cancelled.
    using ObjectPicker = std::function<QString(QWidget *parent)>;

    explicit frmDefaultViolations(DefaultViolationsForm &form, QWidget *parent = nullptr);

    // Replaces the catalogue's picker, as a test does; an empty one puts the catalogue's back.
    static void setObjectPicker(ObjectPicker picker);

    void accept() override;
    void reject() override;

private:
    void PopulateControls();
    void InsertObjectProperty();

    DefaultViolationsForm &m_form;
    QToolBar *m_bar;
    QLabel *m_item;
    QLabel *m_title;
    QLabel *m_violationTitle;
    QPlainTextEdit *m_description;
    QComboBox *m_severity;
    QLabel *m_icon;
    QComboBox *m_category;
    QLineEdit *m_impact;
    QPlainTextEdit *m_advice;
    bool m_populating = false;
};
