#pragma once

#include <QDialog>

#include <functional>

class AuthorisedItemForm;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// The window of an authorised component or reference over its form model: each edit goes to
// the model, and the model's enable rules and cleared fields come back to the controls.
class AuthorisedItemDialog : public QDialog
{
    Q_OBJECT

public:
    ~AuthorisedItemDialog() override;

protected:
    // `description` adds the reference's description field, told by the setter it calls.
    AuthorisedItemDialog(AuthorisedItemForm &form,
                         QWidget *parent,
                         std::function<void(const QString &)> description = {},
                         const QString &descriptionLabel = QString());
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    // The model's fields back into the controls, without echoing them to the model.
    virtual void ShowFields();
    void UpdateControls();

    AuthorisedItemForm &m_form;
    QLineEdit *m_description = nullptr;

private:
    void InsertObjectProperty();

    QLineEdit *m_filename;
    QLineEdit *m_guid;
    QLineEdit *m_versions;
    QPlainTextEdit *m_advice;
    QPushButton *m_objectProperty;
    QPushButton *m_ok;
    bool m_showing = false;
};
