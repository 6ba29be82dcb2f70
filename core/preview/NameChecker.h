#pragma once

#include <QSet>
#include <QString>

#include <memory>

class NamingConvention;
class PatternCache;
class TagLookup;
struct DeclaredObject;

// Applies one naming convention to names: the prefix items in order, the body's pattern and
// length limits, the suffix items from the end, its case rule and its exclusion list. What
// only the convention's condition can decide is said to be so, never guessed.
class NameChecker final
{
public:
    enum class Outcome {
        Pass,
        Excluded, // on the convention's exclusion list
        NoValue,  // the object has no value of the convention's property
        Violation,
        NotPreviewed, // the message says why
    };
    struct Result
    {
        Outcome outcome = Outcome::Pass;
        QString name; // the value checked
        QString message;
        QString advice;
        // The convention takes a control tag and the object's ProgID has none.
        bool unknownControl = false;
    };

    NameChecker(std::shared_ptr<NamingConvention> convention, PatternCache &patterns);
    ~NameChecker();

    const std::shared_ptr<NamingConvention> &convention() const { return m_convention; }
    // Set when no name can be previewed: the convention has a condition or takes a workfield.
    QString notPreviewedReason() const { return m_notPreviewed; }

    Result check(const DeclaredObject &object, const TagLookup &tags) const;

private:
    struct Piece;
    struct Part;
    Part part(bool prefix, const DeclaredObject &object, const TagLookup &tags) const;
    QString value(const DeclaredObject &object, bool &known) const;

    std::shared_ptr<NamingConvention> m_convention;
    PatternCache &m_patterns;
    QString m_notPreviewed;
    QSet<QString> m_excluded; // lower case
    QString m_property;       // lower-case property name; empty for Name
};
