#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

class KeyedArrayList;
class SourceTextFile;
class StringKeyedArrayList;
class VirtualObject;
class VirtualProject;

// The FileType of a source file, by the word that names it in a project file.
namespace SourceFileType {
constexpr qint32 Class = 1;
constexpr qint32 Form = 2;
constexpr qint32 Designer = 3;
constexpr qint32 Module = 4;
constexpr qint32 PropertyPage = 5;
constexpr qint32 UserDocument = 6;
constexpr qint32 UserControl = 7;
constexpr qint32 MDIForm = 8;
} // namespace SourceFileType

// One source file of a project: its name and type from the project file's line (or from the
// file itself), and the file read as a stream of logical lines for a reviewer.
class VirtualSourceFile final
{
public:
    VirtualSourceFile();
    ~VirtualSourceFile();
    VirtualSourceFile(const VirtualSourceFile &) = delete;
    VirtualSourceFile &operator=(const VirtualSourceFile &) = delete;

    // The Visual Basic name of the file; its path when no name was found.
    QString Name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    // The full path, made absolute from the project's folder.
    QString Filename() const { return m_filename; }
    void setFilename(const QString &filename) { m_filename = filename; }
    // One of SourceFileType; 0 until known.
    qint32 FileType() const { return m_fileType; }
    void setFileType(qint32 fileType) { m_fileType = fileType; }
    // Length in bytes of the file Connect opened.
    qint32 Size() const { return m_size; }
    qint32 ReviewStatus() const { return m_reviewStatus; }
    void setReviewStatus(qint32 status) { m_reviewStatus = status; }
    // The parent; held weakly, since the project holds its files.
    std::shared_ptr<VirtualProject> Project() const { return m_project.lock(); }
    void setProject(const std::shared_ptr<VirtualProject> &project) { m_project = project; }
    std::shared_ptr<VirtualObject> FileStats() const { return m_object; }
    std::shared_ptr<KeyedArrayList> Properties() const;
    // Set by GetNextSourceLine once the file's header ("Attribute VB_Name = ...") is behind it.
    bool LineCountingEnabled() const { return m_lineCountingEnabled; }
    std::shared_ptr<StringKeyedArrayList> EventItems();
    // Files with a visual layout and a header before the code: all but classes and modules.
    bool HasLayout() const;
    bool HasHeader() const { return HasLayout(); }

    // Reads one line of a project file ("Form=a.frm", "Class=CFoo; foo.cls"). Gives 0, 2 when
    // the file named gave neither name nor type, 3 when the line is no source line.
    qint32 InitFileFromVBProjectFileLine(const QString &line, const QString &projectFolder);

    // Opens Filename for reading; 0, or the runtime's error number (logged) on failure.
    qint32 Connect();
    // The next logical line: continuations joined, line numbers cut. False at the end of the
    // file, leaving the arguments alone. Attribute lines give a physical count of 0.
    bool GetNextSourceLine(QString &rawText,
                           QString &logicalLine,
                           qint32 &physicalLines,
                           qint32 &length);
    void Disconnect();

    // Reads the whole file and adds every counted logical line (past the header, attribute
    // lines left out) to FileStats' LineStats by its SourceLineType. Gives Connect's result.
    qint32 CountSourceLines();

private:
    qint32 DetermineNameAndFileType(QString &name, QString &typeWord);
    qint32 ConnectFile();
    // Marks the header's end as a logical line goes by, cuts line numbers from `logical`, and
    // gives the physical lines it counts for: none for an attribute line.
    qint32 PassLogicalLine(QByteArrayView first, QByteArrayView &logical, qint32 physical);

    QString m_name;
    QString m_filename;
    qint32 m_fileType = 0;
    std::unique_ptr<SourceTextFile> m_file; // open while connected
    qint32 m_size = 0;
    qint32 m_reviewStatus = 0;
    std::weak_ptr<VirtualProject> m_project;
    std::shared_ptr<VirtualObject> m_object;
    bool m_lineCountingEnabled = false;
    bool m_headerSeen = false;
    std::shared_ptr<StringKeyedArrayList> m_eventItems;
};
