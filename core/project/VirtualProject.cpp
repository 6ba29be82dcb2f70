#include "project/VirtualProject.h"

#include "collections/KeyedArrayList.h"
#include "collections/ObjectKeyedArrayList.h"
#include "collections/StringKeyedArrayList.h"
#include "platform/ErrorFrame.h"
#include "platform/FileUtils.h"
#include "platform/TextUtils.h"
#include "project/SourceTextFile.h"
#include "project/VirtualComponent.h"
#include "project/VirtualObject.h"
#include "project/VirtualReference.h"
#include "project/VirtualSourceFile.h"
#include "project/modSource.h"
#include "project/modVOSource.h"

#include <QVariant>

namespace {

constexpr const char *Module = "VirtualProject";

// The libraries every project has without naming them.
struct DefaultReference
{
    const char *guid;
    const char *filename;
    const char *description;
};
constexpr DefaultReference DefaultReferences[] = {
    {"{000204EF-0000-0000-C000-000000000046}", "MSVBVM60.DLL", "Visual Basic For Applications"},
    {"{EA544A21-C82D-11D1-A3E4-00A0C90AEA82}",
     "MSVBVM60.DLL\\3",
     "Visual Basic runtime objects and procedures"},
    {"{FCFB3D2E-A0FA-1068-A738-08002B3371B5}", "VB6.OLB", "Visual Basic objects and procedures"},
};

// The hexadecimal LCID part as the runtime's Val("&H" & part) reads it: leading blanks
// skipped, digits up to the first other character, and 0 for anything unreadable.
qint32 lcidFromHex(const QString &part)
{
    const QString text = Text::trimBlanks(part);
    auto isHexDigit = [&](qsizetype i) {
        return i < text.size()
               && (text[i].isDigit() || (text[i].toLower() >= u'a' && text[i].toLower() <= u'f'))
               && text[i].unicode() < 128;
    };
    qsizetype digits = 0;
    while (digits < 8 && isHexDigit(digits))
        ++digits;
    // More than 32 bits of digits is unreadable too.
    if (digits == 0 || isHexDigit(digits))
        return 0;
    return qint32(text.left(digits).toUInt(nullptr, 16));
}

QuorinError malformedLine(const char *routine)
{
    return {5,
            QStringLiteral("VirtualProject::") + QLatin1String(routine),
            QStringLiteral("Invalid procedure call or argument")};
}

// A design-time item names another project: everything behind the line's first backslash.
QString designTimeName(const QString &line)
{
    return line.mid(line.indexOf(QLatin1Char('\\')) + 1);
}

} // namespace

VirtualProject::VirtualProject()
    : m_projectStats(std::make_shared<VirtualObject>())
{
    ClearListProperties();
}

VirtualProject::~VirtualProject() = default;

std::shared_ptr<KeyedArrayList> VirtualProject::Properties() const
{
    return m_projectObject->Properties();
}

void VirtualProject::ClearListProperties()
{
    m_projectObject = std::make_shared<VirtualObject>();
    m_references = std::make_shared<ObjectKeyedArrayList<VirtualReference>>();
    m_components = std::make_shared<ObjectKeyedArrayList<VirtualComponent>>();
    m_relatedDocs = std::make_shared<StringKeyedArrayList>();
    m_sourceFiles = std::make_shared<ObjectKeyedArrayList<VirtualSourceFile>>();
}

qint32 VirtualProject::FileCount(qint32 fileType) const
{
    switch (fileType) {
    case SourceFileType::Class:
        return m_classCount;
    case SourceFileType::Form:
    case SourceFileType::MDIForm:
        return m_formCount;
    case SourceFileType::Designer:
        return m_designerCount;
    case SourceFileType::Module:
        return m_moduleCount;
    case SourceFileType::PropertyPage:
        return m_propertyPageCount;
    case SourceFileType::UserDocument:
        return m_userDocumentCount;
    case SourceFileType::UserControl:
        return m_userControlCount;
    default:
        return 0;
    }
}

qint32 VirtualProject::LoadProject(const QString &filename)
{
    const qint32 status = LoadProjectFile(filename, false);
    if (status == ProjectLoadStatus::Read)
        modVOSource::AddFilenameRelatedProperties(*m_projectObject, filename);
    return status;
}

qint32 VirtualProject::LoadProjectFile(const QString &filename, bool noChildItems)
{
    std::unique_ptr<SourceTextFile> file;
    try {
        file = std::make_unique<SourceTextFile>(filename);
    } catch (const QuorinError &error) {
        const bool missing = error.number() == FileErrorNumber::FileNotFound
                             || error.number() == FileErrorNumber::PathNotFound;
        return missing ? ProjectLoadStatus::NotFound : ProjectLoadStatus::NotOpened;
    } catch (const std::exception &) {
        return ProjectLoadStatus::NotOpened;
    }

    m_projectPath = FileUtils::PathFromFilename(filename);
    m_filename = filename;
    if (!noChildItems)
        AddDefaultReferences();

    while (!file->atEnd()) {
        const QString line = file->readLine();
        // The project's keys end at the first section; its keys are another tool's.
        if (line.startsWith(QLatin1Char('[')))
            break;
        if (!DecodeLineFromVBProjectFile(line, noChildItems))
            return ProjectLoadStatus::LineNotDecoded;
        if (line.isEmpty())
            break;
    }
    return ProjectLoadStatus::Read;
}

void VirtualProject::AddDefaultReferences()
{
    for (const DefaultReference &item : DefaultReferences) {
        auto reference = std::make_shared<VirtualReference>();
        reference->setGUID(QLatin1String(item.guid));
        reference->setFilename(QLatin1String(item.filename));
        reference->setDescription(QLatin1String(item.description));
        reference->setVersion(QStringLiteral("6.0"));
        reference->setLCID(9);
        m_references->Add(reference->GUID(), reference, false, false);
    }
}

bool VirtualProject::DecodeLineFromVBProjectFile(const QString &line, bool noChildItems)
{
    return guarded("DecodeLineFromVBProjectFile", Module, false, [&] {
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals < 0)
            return true;
        const QString key = line.left(equals);
        QString value = line.mid(equals + 1);
        // The closing quote is taken on trust: a value that lacks it loses its last character.
        if (value.startsWith(QLatin1Char('"')))
            value = value.mid(1, std::max<qsizetype>(value.size() - 2, 0));

        auto is = [&](const char *word) { return Text::same(key, QLatin1String(word)); };
        auto countFile = [&](qint32 &counter) {
            ++counter;
            return noChildItems || AddProjectFileSourceFile(line);
        };

        if (is("RelatedDoc")) {
            // Each is added selected, so that SelectedCount runs on as the key's number.
            if (!noChildItems)
                m_relatedDocs->Add(
                    QString::number(m_relatedDocs->SelectedCount() + 1), value, true);
        } else if (is("Name")) {
            // A repeated key keeps its first value, here and for every key below.
            if (m_projectObject->AddProperty(key, value))
                m_name = value;
        } else if (is("Class")) {
            return countFile(m_classCount);
        } else if (is("Designer")) {
            return countFile(m_designerCount);
        } else if (is("Module")) {
            return countFile(m_moduleCount);
        } else if (is("PropertyPage")) {
            return countFile(m_propertyPageCount);
        } else if (is("UserControl")) {
            return countFile(m_userControlCount);
        } else if (is("UserDocument")) {
            return countFile(m_userDocumentCount);
        } else if (is("Form") || is("MDIForm")) {
            return countFile(m_formCount);
        } else if (is("Object")) {
            if (!noChildItems)
                AddProjectFileComponent(line);
        } else if (is("Reference")) {
            if (!noChildItems)
                AddProjectFileReference(line);
        } else if (is("FavorPentiumPro(tm)")) {
            m_projectObject->AddProperty(QStringLiteral("FavorPentiumPro"), value);
        } else if (is("Type")) {
            if (m_projectObject->AddProperty(key, value))
                m_projectType = value;
        } else {
            m_projectObject->AddProperty(key, value);
        }
        return true;
    });
}

void VirtualProject::AddProjectFileReference(const QString &line)
{
    guardedVoid("AddProjectFileReference", Module, [&] {
        auto reference = std::make_shared<VirtualReference>();
        QString key;
        const qsizetype brace = line.indexOf(QLatin1Char('{'));
        if (brace >= 0) {
            // {GUID}#version#lcid#file#description
            const QStringList parts = line.mid(brace).split(QLatin1Char('#'));
            if (parts.size() < 5)
                throw QuorinError::subscriptOutOfRange(
                    QStringLiteral("VirtualProject::AddProjectFileReference"));
            reference->setGUID(parts[0]);
            reference->setVersion(parts[1]);
            reference->setLCID(lcidFromHex(parts[2]));
            reference->setFilename(parts[3]);
            reference->setDescription(parts[4]);
            key = reference->GUID();
        } else {
            reference->setDesignTime(true);
            key = designTimeName(line);
            reference->setFilename(key);
        }
        m_references->Add(key, reference, false, false);
    });
}

void VirtualProject::AddProjectFileComponent(const QString &line)
{
    guardedVoid("AddProjectFileComponent", Module, [&] {
        auto component = std::make_shared<VirtualComponent>();
        QString key;
        const qsizetype brace = line.indexOf(QLatin1Char('{'));
        if (brace >= 0) {
            // {GUID}#version#lcid; file
            const QString text = line.mid(brace);
            const qsizetype semicolon = text.indexOf(QLatin1Char(';'));
            if (semicolon < 0)
                throw malformedLine("AddProjectFileComponent");
            const QStringList parts = text.left(semicolon).split(QLatin1Char('#'));
            if (parts.size() < 3)
                throw QuorinError::subscriptOutOfRange(
                    QStringLiteral("VirtualProject::AddProjectFileComponent"));
            component->setFilename(
                modSource::RemoveQuotes(Text::trimBlanks(text.mid(semicolon + 1))));
            component->setGUID(parts[0]);
            component->setVersion(parts[1]);
            component->setLCID(lcidFromHex(parts[2]));
            key = component->GUID();
        } else {
            component->setDesignTime(true);
            key = designTimeName(line);
            component->setFilename(key);
        }
        m_components->Add(key, component, false, false);
    });
}

bool VirtualProject::AddProjectFileSourceFile(const QString &line)
{
    return guarded("AddProjectFileSourceFile", Module, false, [&] {
        auto file = std::make_shared<VirtualSourceFile>();
        file->setReviewStatus(file->InitFileFromVBProjectFileLine(line, m_projectPath));
        file->setProject(weak_from_this().lock());
        const QString key = file->Name().isEmpty() ? file->Filename() : file->Name();
        m_sourceFiles->Add(key, file, false, false);
        return true;
    });
}
