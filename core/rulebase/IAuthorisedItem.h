#pragma once

#include <QString>

// What the authorised items view and its dialogs see of a component or a reference.
class IAuthorisedItem
{
public:
    virtual ~IAuthorisedItem() = default;

    virtual QString Title() const = 0;
    virtual void setTitle(const QString &title) = 0;
    virtual QString TypeLibGuid() const = 0;
    virtual void setTypeLibGuid(const QString &guid) = 0;
    virtual QString Versions() const = 0;
    virtual void setVersions(const QString &versions) = 0;
    virtual QString Advice() const = 0;
    virtual void setAdvice(const QString &advice) = 0;
    virtual bool Selected() const = 0;
    virtual void setSelected(bool selected) = 0;
};
