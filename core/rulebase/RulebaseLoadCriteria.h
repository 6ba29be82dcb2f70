#pragma once

#include "collections/LongArrayList.h"

#include <QString>

#include <array>

// Which rulebase file to read and how much of it. This program always loads for editing; the
// other fields describe the selective load of the review side, filtering rules by section,
// severity and category.
class RulebaseLoadCriteria final
{
public:
    // Raised only by a change of the file (ignoring case), a section flag, a severity level
    // or the excluded ids.
    bool Dirty() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }
    QString RulebaseFile() const { return m_rulebaseFile; }
    void setRulebaseFile(const QString &filename);
    // Descriptive only; the load doesn't use them.
    QString RulebaseTitle() const { return m_rulebaseTitle; }
    void setRulebaseTitle(const QString &title) { m_rulebaseTitle = title; }
    QString RulebaseVersion() const { return m_rulebaseVersion; }
    void setRulebaseVersion(const QString &version) { m_rulebaseVersion = version; }

    bool AuthorisedComponents() const { return m_authorisedComponents; }
    void setAuthorisedComponents(bool load) { setFlag(m_authorisedComponents, load); }
    bool AuthorisedReferences() const { return m_authorisedReferences; }
    void setAuthorisedReferences(bool load) { setFlag(m_authorisedReferences, load); }
    bool UnauthorisedKeywords() const { return m_unauthorisedKeywords; }
    void setUnauthorisedKeywords(bool load) { setFlag(m_unauthorisedKeywords, load); }
    bool CodingConventions() const { return m_codingConventions; }
    void setCodingConventions(bool load) { setFlag(m_codingConventions, load); }
    bool NamingConventions() const { return m_namingConventions; }
    void setNamingConventions(bool load) { setFlag(m_namingConventions, load); }
    // The loader does not consult this one.
    bool DocumentationConventions() const { return m_documentationConventions; }
    void setDocumentationConventions(bool load) { setFlag(m_documentationConventions, load); }
    // Levels 1 to 5; another level reads False and its set is ignored.
    bool SeverityLevel(qint32 level) const;
    void setSeverityLevel(qint32 level, bool load);

    bool IsExcludedCategoryID(qint32 id) const { return m_excludedCategoryIDs.ContainsValue(id); }
    qint32 ExcludedCategoryID(qint32 index) const { return m_excludedCategoryIDs.Item(index); }
    qint32 ExcludedCategoryIDCount() const { return m_excludedCategoryIDs.Count(); }
    // Each id is held once.
    void AddExcludedCategoryID(qint32 id);
    void RemoveExcludedCategoryID(qint32 id);

    // Reads every section and every rule, whatever the other fields say.
    bool LoadForEdit() const { return m_loadForEdit; }
    void setLoadForEdit(bool loadForEdit) { m_loadForEdit = loadForEdit; }

    // Element counts of the sections, filled in by the loader whether or not it read them.
    qint32 NumAuthComps() const { return m_numAuthComps; }
    void setNumAuthComps(qint32 count) { m_numAuthComps = count; }
    qint32 NumAuthRefs() const { return m_numAuthRefs; }
    void setNumAuthRefs(qint32 count) { m_numAuthRefs = count; }
    qint32 NumUnauthKeywords() const { return m_numUnauthKeywords; }
    void setNumUnauthKeywords(qint32 count) { m_numUnauthKeywords = count; }
    qint32 NumCodingConventions() const { return m_numCodingConventions; }
    void setNumCodingConventions(qint32 count) { m_numCodingConventions = count; }
    qint32 NumNamingConventions() const { return m_numNamingConventions; }
    void setNumNamingConventions(qint32 count) { m_numNamingConventions = count; }
    qint32 NumDocConventions() const { return m_numDocConventions; }
    void setNumDocConventions(qint32 count) { m_numDocConventions = count; }

private:
    void setFlag(bool &flag, bool value);

    QString m_rulebaseFile;
    QString m_rulebaseTitle;
    QString m_rulebaseVersion;
    bool m_authorisedComponents = false;
    bool m_authorisedReferences = false;
    bool m_unauthorisedKeywords = false;
    bool m_codingConventions = false;
    bool m_namingConventions = false;
    bool m_documentationConventions = false;
    std::array<bool, 5> m_severityLevels{};
    LongArrayList m_excludedCategoryIDs;
    bool m_loadForEdit = false;
    qint32 m_numAuthComps = 0;
    qint32 m_numAuthRefs = 0;
    qint32 m_numUnauthKeywords = 0;
    qint32 m_numCodingConventions = 0;
    qint32 m_numNamingConventions = 0;
    qint32 m_numDocConventions = 0;
    bool m_dirty = false;
};
