#pragma once

#include "collections/LongArrayList.h"
#include "collections/ObjectKeyedArrayList.h"

#include <QString>

#include <memory>

class AuthorisedComponents;
class AuthorisedReferences;
class CategoryList;
class DefaultViolations;
class Report;
class RuleLists;
class SeverityItem;
class TagItem;

// The one document: title block, tolerances, tag sets, categories, severities, default
// violations, authorised items, rules and the report plan. It owns all of them; everybody
// else holds them for the length of an operation.
class Rulebase final
{
public:
    Rulebase();
    ~Rulebase();

    // Each list comes read-only from a read-only rulebase.
    std::shared_ptr<::AuthorisedReferences> AuthorisedReferences()
    {
        return m_authorisedReferences;
    }
    std::shared_ptr<const ::AuthorisedReferences> AuthorisedReferences() const
    {
        return m_authorisedReferences;
    }
    std::shared_ptr<::AuthorisedComponents> AuthorisedComponents()
    {
        return m_authorisedComponents;
    }
    std::shared_ptr<const ::AuthorisedComponents> AuthorisedComponents() const
    {
        return m_authorisedComponents;
    }
    std::shared_ptr<::RuleLists> RuleLists() { return m_ruleLists; }
    std::shared_ptr<const ::RuleLists> RuleLists() const { return m_ruleLists; }
    // Keyed by TagName.
    std::shared_ptr<ObjectKeyedArrayList<TagItem>> ControlTags() { return m_controlTags; }
    std::shared_ptr<const ObjectKeyedArrayList<TagItem>> ControlTags() const
    {
        return m_controlTags;
    }
    std::shared_ptr<ObjectKeyedArrayList<TagItem>> DataTypeTags() { return m_dataTypeTags; }
    std::shared_ptr<const ObjectKeyedArrayList<TagItem>> DataTypeTags() const
    {
        return m_dataTypeTags;
    }
    std::shared_ptr<ObjectKeyedArrayList<TagItem>> ScopeTags() { return m_scopeTags; }
    std::shared_ptr<const ObjectKeyedArrayList<TagItem>> ScopeTags() const { return m_scopeTags; }
    std::shared_ptr<::DefaultViolations> DefaultViolations() { return m_defaultViolations; }
    std::shared_ptr<const ::DefaultViolations> DefaultViolations() const
    {
        return m_defaultViolations;
    }
    // Full path; empty until saved or loaded. Setting it leaves Dirty alone.
    QString Filename() const { return m_filename; }
    void setFilename(const QString &filename) { m_filename = filename; }
    // "[Untitled]" without a file name; else the name after the last folder separator, and
    // empty when that has no ".".
    QString FileTitle() const;
    // The own flag, or that of any part; tag sets count through their items only.
    bool Dirty() const;
    void setDirty(bool dirty);
    // Set by the loader when a section of the file stopped at a bad value: what followed it
    // there is missing here, and a save over the file would lose it for good.
    bool LoadedInPart() const { return m_loadedInPart; }
    void setLoadedInPart(bool inPart) { m_loadedInPart = inPart; }

    // Each setter below marks the rulebase, whether or not the value changes.
    QString Title() const { return m_title; }
    void setTitle(const QString &title);
    QString Version() const { return m_version; }
    void setVersion(const QString &version);
    QString Description() const { return m_description; }
    void setDescription(const QString &description);
    bool AutoIncrementVersion() const { return m_autoIncrementVersion; }
    void setAutoIncrementVersion(bool autoIncrement);
    bool UnknownControlViolation() const { return m_unknownControlViolation; }
    void setUnknownControlViolation(bool raise);
    // Authorised components and references count as rules here.
    qint32 RuleCount() const;
    bool UseCTagsAsDTTags() const { return m_useCTagsAsDTTags; }
    void setUseCTagsAsDTTags(bool use);
    QString ArrayTag() const { return m_arrayTag; }
    void setArrayTag(const QString &tag);
    std::shared_ptr<::CategoryList> CategoryList() { return m_categoryList; }
    std::shared_ptr<const ::CategoryList> CategoryList() const { return m_categoryList; }
    // Keyed by "<level>Key".
    std::shared_ptr<ObjectKeyedArrayList<SeverityItem>> SeverityList() { return m_severityList; }
    std::shared_ptr<const ObjectKeyedArrayList<SeverityItem>> SeverityList() const
    {
        return m_severityList;
    }
    std::shared_ptr<::Report> Report() { return m_report; }
    std::shared_ptr<const ::Report> Report() const { return m_report; }

    // Tolerances: -1 means none is set. The counts and impacts are entries 1 to 6 of their
    // lists, whose bounds are the list's (a subscript error beyond its capacity).
    qint32 ToleranceCount(qint32 index) const { return m_toleranceCount.Item(index); }
    void setToleranceCount(qint32 index, qint32 value) { m_toleranceCount.setItem(index, value); }
    qint32 ToleranceImpact(qint32 index) const { return m_toleranceImpact.Item(index); }
    void setToleranceImpact(qint32 index, qint32 value) { m_toleranceImpact.setItem(index, value); }
    qint32 TolerancePercentageComments() const { return m_tolerancePercentageComments; }
    void setTolerancePercentageComments(qint32 value);
    qint32 ToleranceCyclomaticComplexity() const { return m_toleranceCyclomaticComplexity; }
    void setToleranceCyclomaticComplexity(qint32 value);

private:
    void DefaultScopeTags();
    void DefaultDataTypeTags();
    void DefaultControlTags();
    void DefaultSeverityList();

    bool m_dirty = false;
    bool m_loadedInPart = false;
    QString m_title = QStringLiteral("Untitled");
    QString m_version = QStringLiteral("1.0.0");
    bool m_autoIncrementVersion = true;
    QString m_description;
    QString m_filename;
    bool m_unknownControlViolation = false;
    bool m_useCTagsAsDTTags = false;
    QString m_arrayTag;
    std::shared_ptr<::AuthorisedReferences> m_authorisedReferences;
    std::shared_ptr<::AuthorisedComponents> m_authorisedComponents;
    std::shared_ptr<::RuleLists> m_ruleLists;
    std::shared_ptr<ObjectKeyedArrayList<TagItem>> m_controlTags;
    std::shared_ptr<ObjectKeyedArrayList<TagItem>> m_dataTypeTags;
    std::shared_ptr<ObjectKeyedArrayList<TagItem>> m_scopeTags;
    std::shared_ptr<::DefaultViolations> m_defaultViolations;
    std::shared_ptr<::CategoryList> m_categoryList;
    std::shared_ptr<ObjectKeyedArrayList<SeverityItem>> m_severityList;
    std::shared_ptr<::Report> m_report;
    LongArrayList m_toleranceCount;
    LongArrayList m_toleranceImpact;
    qint32 m_tolerancePercentageComments = -1;
    qint32 m_toleranceCyclomaticComplexity = -1;
};
