#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class AuthorisedComponent;
class AuthorisedComponents;
class AuthorisedReference;
class AuthorisedReferences;
class Rulebase;

// One change a merge made to a rulebase's authorised items: a library new to it, or a version
// joining the list of one it knew.
struct AuthorisedItemChange
{
    enum class Kind { Component, Reference };

    Kind kind = Kind::Component;
    // False when only a version was added to a known library.
    bool added = false;
    // The rulebase's own item, after the change; exactly one is set, after `kind`.
    std::shared_ptr<AuthorisedComponent> component;
    std::shared_ptr<AuthorisedReference> reference;
    // The version the merge brought in.
    QString version;

    QString libID() const;
    QString versionList() const;
};

// How one ActiveX file went into the rulebase.
enum class ActiveXFileResult {
    Merged,                // read; its library is authorised now (it may have been already)
    ControlWithoutLibrary, // an .ocx without a readable library: passed over
    NotActiveX,            // any other file without a readable library
};

// Puts what an import found into a rulebase's authorised items, the one way the authorised
// items view and the command-line tool both do it, and lists what changed so that a caller
// can show it.
class AuthorisedItemsMerger final
{
public:
    explicit AuthorisedItemsMerger(Rulebase &rulebase);

    // The Selected candidates of a project import: a new library is added as it stands, a
    // known one gets the candidate's version appended (the import only offers versions the
    // rulebase lacks).
    void MergeSelected(const AuthorisedComponents &components,
                       const AuthorisedReferences &references);
    // The type library of an ActiveX file: an .ocx becomes a component, any other file a
    // reference. A known library gets the version only when its list doesn't hold it.
    ActiveXFileResult MergeActiveXFile(const QString &filename);

    // In the order the changes were made.
    const std::vector<AuthorisedItemChange> &Changes() const { return m_changes; }
    qint32 AddedCount() const;

    // Whether a version list holds a version: a plain substring search ignoring case.
    static bool HoldsVersion(const QString &versionList, const QString &version);
    // Whether a file name ends in a type that may hold a type library: the last three
    // letters, upper-cased, found within "DLL|EXE|OCX|TLB|OLB".
    static bool IsActiveXFilename(const QString &filename);

private:
    void AddComponent(const std::shared_ptr<AuthorisedComponent> &item);
    void AddComponentVersion(const std::shared_ptr<AuthorisedComponent> &known,
                             const QString &version);
    void AddReference(const std::shared_ptr<AuthorisedReference> &item);
    void AddReferenceVersion(const std::shared_ptr<AuthorisedReference> &known,
                             const QString &version);

    Rulebase &m_rulebase;
    std::vector<AuthorisedItemChange> m_changes;
};
