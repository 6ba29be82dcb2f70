#pragma once

#include "gui/dialogs/AuthorisedItemDialog.h"

class AuthorisedComponentForm;

// "Authorised Component": one ActiveX component that projects may use.
class frmAuthorisedComponent final : public AuthorisedItemDialog
{
    Q_OBJECT

public:
    explicit frmAuthorisedComponent(AuthorisedComponentForm &form, QWidget *parent = nullptr);
};
