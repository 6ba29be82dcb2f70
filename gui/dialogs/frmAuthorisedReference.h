#pragma once

#include "gui/dialogs/AuthorisedItemDialog.h"

class AuthorisedReferenceForm;

// "Authorised Reference": one type library that projects may reference.
class frmAuthorisedReference final : public AuthorisedItemDialog
{
    Q_OBJECT

public:
    explicit frmAuthorisedReference(AuthorisedReferenceForm &form, QWidget *parent = nullptr);

protected:
    void ShowFields() override;

private:
    AuthorisedReferenceForm &m_reference;
};
