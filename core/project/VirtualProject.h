#pragma once

#include <QString>

#include <memory>

template<typename T>
class ObjectKeyedArrayList;
class KeyedArrayList;
class StringKeyedArrayList;
class VirtualComponent;
class VirtualObject;
class VirtualReference;
class VirtualSourceFile;

// What LoadProject and LoadProjectFile give.
namespace ProjectLoadStatus {
constexpr qint32 Read = 0;
constexpr qint32 LineNotDecoded = 1;
constexpr qint32 NotOpened = 2;
constexpr qint32 NotFound = 3; // the file or its folder doesn't exist
} // namespace ProjectLoadStatus

// A Visual Basic project file (.vbp) in memory: its keys as properties, its references,
// components, related documents and source files. The file is a list of "Key=Value" lines;
// reading ends at the first empty line or section header ("[MS Transaction Server]"), so
// that the keys of later sections never mix with the project's. Make it with make_shared, so
// that its source files can refer back to it.
class VirtualProject final : public std::enable_shared_from_this<VirtualProject>
{
public:
    VirtualProject();
    ~VirtualProject();

    // LoadProjectFile, then on success the file-name properties of the project.
    qint32 LoadProject(const QString &filename);
    // With noChildItems only the keys and the file counters are read: no default reference,
    // no list entry, no source file.
    qint32 LoadProjectFile(const QString &filename, bool noChildItems);

    // Keyed by GUID, or for a design-time reference by the text behind the first backslash.
    std::shared_ptr<ObjectKeyedArrayList<VirtualReference>> References() const
    {
        return m_references;
    }
    // Keyed by the running number as text: "1", "2"...
    std::shared_ptr<StringKeyedArrayList> RelatedDocs() const { return m_relatedDocs; }
    // The project's keys, in file order, under their spelling in the file.
    std::shared_ptr<KeyedArrayList> Properties() const;
    // Keyed by Name, or by Filename when the name is empty.
    std::shared_ptr<ObjectKeyedArrayList<VirtualSourceFile>> SourceFiles() const
    {
        return m_sourceFiles;
    }
    // New, empty lists and project object; the file counters stay.
    void ClearListProperties();
    // Keyed as References.
    std::shared_ptr<ObjectKeyedArrayList<VirtualComponent>> Components() const
    {
        return m_components;
    }

    QString Name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    // The counter of a SourceFileType (Form and MDIForm share one); 0 for any other value.
    qint32 FileCount(qint32 fileType) const;
    QString Filename() const { return m_filename; }
    void setFilename(const QString &filename) { m_filename = filename; }
    // The folder of the project file, with its trailing separator.
    QString ProjectPath() const { return m_projectPath; }
    std::shared_ptr<VirtualObject> ProjectStats() const { return m_projectStats; }
    QString ProjectType() const { return m_projectType; }
    void setProjectType(const QString &type) { m_projectType = type; }

    // Kept for review records; the reader leaves them alone.
    qint32 ReferenceErrors() const { return m_referenceErrors; }
    void setReferenceErrors(qint32 value) { m_referenceErrors = value; }
    qint32 ComponentErrors() const { return m_componentErrors; }
    void setComponentErrors(qint32 value) { m_componentErrors = value; }
    qint32 FileErrors() const { return m_fileErrors; }
    void setFileErrors(qint32 value) { m_fileErrors = value; }
    qint32 ReviewStatus() const { return m_reviewStatus; }
    void setReviewStatus(qint32 value) { m_reviewStatus = value; }
    qint32 ScanErrors() const { return m_scanErrors; }
    void setScanErrors(qint32 value) { m_scanErrors = value; }

private:
    bool DecodeLineFromVBProjectFile(const QString &line, bool noChildItems);
    void AddDefaultReferences();
    void AddProjectFileReference(const QString &line);
    void AddProjectFileComponent(const QString &line);
    bool AddProjectFileSourceFile(const QString &line);

    std::shared_ptr<ObjectKeyedArrayList<VirtualReference>> m_references;
    std::shared_ptr<ObjectKeyedArrayList<VirtualComponent>> m_components;
    std::shared_ptr<StringKeyedArrayList> m_relatedDocs;
    std::shared_ptr<ObjectKeyedArrayList<VirtualSourceFile>> m_sourceFiles;
    qint32 m_moduleCount = 0;
    qint32 m_classCount = 0;
    qint32 m_userControlCount = 0;
    qint32 m_userDocumentCount = 0;
    qint32 m_designerCount = 0;
    qint32 m_formCount = 0;
    qint32 m_propertyPageCount = 0;
    QString m_name;
    QString m_projectPath;
    QString m_filename;
    QString m_projectType;
    std::shared_ptr<VirtualObject> m_projectObject;
    std::shared_ptr<VirtualObject> m_projectStats;
    qint32 m_referenceErrors = 0;
    qint32 m_componentErrors = 0;
    qint32 m_fileErrors = 0;
    qint32 m_scanErrors = 0;
    qint32 m_reviewStatus = 0;
};
