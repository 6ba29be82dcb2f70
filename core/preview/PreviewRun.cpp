#include "preview/PreviewRun.h"

#include "collections/KeyedArrayList.h"
#include "collections/ObjectKeyedArrayList.h"
#include "platform/TextUtils.h"
#include "preview/AuthorisedItemChecker.h"
#include "preview/CatalogueObject.h"
#include "preview/DeclarationScanner.h"
#include "preview/DeclaredObject.h"
#include "preview/KeywordChecker.h"
#include "preview/NameChecker.h"
#include "preview/ParserEvent.h"
#include "preview/PatternCache.h"
#include "preview/ScanSink.h"
#include "preview/TagLookup.h"
#include "preview/ToleranceChecker.h"
#include "project/ProjectFileList.h"
#include "project/SourceLineStatistics.h"
#include "project/SourceTextFile.h"
#include "project/VirtualComponent.h"
#include "project/VirtualProject.h"
#include "project/VirtualReference.h"
#include "project/VirtualSourceFile.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/IRule.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"
#include "vocabulary/ObjectHelper.h"

#include <QDir>
#include <QFileInfo>
#include <QVariant>

#include <algorithm>
#include <array>
#include <limits>
#include <tuple>

namespace {

constexpr qint32 ObjectTypes = 50; // ids 1 to 49

// DefaultViolations::ItemByType
constexpr qint32 ComponentViolation = 1;
constexpr qint32 ComponentVersionViolation = 2;
constexpr qint32 ReferenceViolation = 3;
constexpr qint32 ReferenceVersionViolation = 4;
constexpr qint32 UnknownControlViolation = 5;

// Project files name paths as Windows writes them; where "/" separates, a path the reader
// could not resolve still has its backslashes, which name no folder here.
QString localPath(const QString &path)
{
    if (QDir::separator() == QLatin1Char('\\'))
        return path;
    return QString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

struct StoredObject
{
    DeclaredObject object;
    qint32 file; // -1: the project file
    qint32 project;
};

// One run: what the scanner tells is gathered here, then checked.
class RunState final : public ScanSink
{
public:
    RunState(const Rulebase &rulebase, std::function<bool(const QString &)> wants);

    void declared(DeclaredObject &&object) override;
    void code(quint64 events, QStringView text, qint32 line) override;

    void addUnread(const QString &path, const QString &problem, qint32 project);
    void readProjects(const QStringList &paths);
    void scanSources(const PreviewRun::Progress &progress, const std::atomic<bool> &cancelled);
    void checkNames();
    void checkLibraries();
    void checkTolerances();
    PreviewResult take();

private:
    PreviewFinding ruleFinding(const IRule &rule, const QString &file, qint32 line) const;
    PreviewFinding checkFinding(const QString &check,
                                qint32 violationType,
                                const QString &file,
                                qint32 line) const;
    void projectObject(qint32 project);
    QString filePath(qint32 file, qint32 project) const;
    const QString &objectKind(qint32 objectType);
    // One copy of each text that many findings repeat.
    QString intern(const QString &text);

    const Rulebase &m_rulebase;
    std::function<bool(const QString &)> m_wants;
    PatternCache m_patterns;
    TagLookup m_tags;
    std::vector<std::unique_ptr<NameChecker>> m_checkers;
    std::array<std::vector<qsizetype>, ObjectTypes> m_checkersFor;
    std::unique_ptr<KeywordChecker> m_keywords;
    std::vector<KeywordChecker::Match> m_matches;
    // What the findings of a rule share, made once for it.
    mutable QHash<const IRule *, PreviewFinding> m_templates;
    std::array<QString, ObjectTypes> m_objectKinds;
    QSet<QString> m_texts;

    std::vector<std::shared_ptr<VirtualProject>> m_projects; // in step with the result's
    std::vector<QString> m_files;
    std::vector<StoredObject> m_objects;
    // Objects a convention can't preview, counted by convention and project.
    // By convention, project and reason.
    QHash<QPair<QPair<qsizetype, qint32>, QString>, qint64> m_notPreviewed;
    qint32 m_project = -1;
    qint32 m_file = -1;
    PreviewResult m_result;
};

RunState::RunState(const Rulebase &rulebase, std::function<bool(const QString &)> wants)
    : m_rulebase(rulebase)
    , m_wants(std::move(wants))
    , m_tags(rulebase)
{
    const auto lists = rulebase.RuleLists();
    const auto naming = lists->NamingConventions();
    for (qint32 i = 1; i <= naming->Count(); ++i) {
        const auto convention = naming->Item(i);
        if (!convention || !convention->RuleActive()
            || !m_wants(QString::number(convention->RuleID())))
            continue;
        m_checkers.push_back(std::make_unique<NameChecker>(convention, m_patterns));
    }
    for (qint32 type = 1; type < ObjectTypes; ++type) {
        const QList<qint32> chain = CatalogueObject::chain(type);
        for (qsizetype c = 0; c < qsizetype(m_checkers.size()); ++c) {
            if (chain.contains(m_checkers[c]->convention()->ObjectType()))
                m_checkersFor[type].push_back(c);
        }
    }
    std::vector<std::shared_ptr<UnauthorisedKeyword>> keywords;
    const auto unauthorised = lists->UnauthorisedKeywords();
    for (qint32 i = 1; i <= unauthorised->Count(); ++i) {
        const auto keyword = unauthorised->Item(i);
        if (keyword && keyword->RuleActive() && m_wants(QString::number(keyword->RuleID())))
            keywords.push_back(keyword);
    }
    m_keywords = std::make_unique<KeywordChecker>(std::move(keywords));
    // A keyword that can't be tried anywhere is said once, against the rulebase.
    for (const KeywordChecker::Problem &problem : m_keywords->problems()) {
        PreviewFinding finding
            = ruleFinding(*m_keywords->keywords()[problem.keyword], rulebase.Filename(), 0);
        finding.kind = PreviewFinding::Kind::NotPreviewed;
        finding.objectKind = objectKind(23); // Source
        finding.message = QStringLiteral("not previewed (%1)").arg(problem.reason);
        m_result.findings.push_back(finding);
    }
}

PreviewFinding RunState::ruleFinding(const IRule &rule, const QString &file, qint32 line) const
{
    auto found = m_templates.find(&rule);
    if (found == m_templates.end()) {
        PreviewFinding made;
        made.ruleId = QString::number(rule.RuleID());
        made.ruleKey = rule.RuleKey();
        made.ruleType = rule.RuleType();
        made.ruleTitle = rule.Title();
        if (const auto definition = rule.ViolationDefinition()) {
            made.severity = definition->Severity();
            made.impact = definition->Impact();
            made.advice = definition->Advice();
        }
        found = m_templates.insert(&rule, made);
    }
    PreviewFinding finding = *found;
    finding.file = file;
    finding.line = line;
    finding.project = m_project;
    return finding;
}

const QString &RunState::objectKind(qint32 objectType)
{
    static const QString none;
    if (objectType <= 0 || objectType >= ObjectTypes)
        return none;
    QString &kind = m_objectKinds[objectType];
    if (kind.isEmpty())
        kind = ObjectHelper::ObjectName(objectType);
    return kind;
}

QString RunState::intern(const QString &text)
{
    const auto found = m_texts.constFind(text);
    if (found != m_texts.constEnd())
        return *found;
    m_texts.insert(text);
    return text;
}

PreviewFinding RunState::checkFinding(const QString &check,
                                      qint32 violationType,
                                      const QString &file,
                                      qint32 line) const
{
    PreviewFinding finding;
    finding.ruleId = check;
    finding.ruleKey = check;
    finding.ruleTitle = PreviewRun::checkTitle(check);
    finding.file = file;
    finding.line = line;
    finding.project = m_project;
    if (const auto definition = m_rulebase.DefaultViolations()->ItemByType(violationType)) {
        finding.severity = definition->Severity();
        finding.impact = definition->Impact();
        finding.advice = definition->Advice();
    }
    return finding;
}

QString RunState::filePath(qint32 file, qint32 project) const
{
    return file >= 0 ? m_files[file] : m_result.projects[project].path;
}

void RunState::addUnread(const QString &path, const QString &problem, qint32 project)
{
    PreviewFinding finding;
    finding.kind = PreviewFinding::Kind::Unread;
    finding.ruleId = PreviewCheck::UnreadFile;
    finding.ruleKey = PreviewCheck::UnreadFile;
    finding.ruleTitle = PreviewRun::checkTitle(PreviewCheck::UnreadFile);
    finding.objectKind = QStringLiteral("File");
    finding.file = localPath(path);
    finding.name = QFileInfo(finding.file).fileName();
    finding.message = problem;
    finding.project = project;
    m_result.findings.push_back(finding);
}

void RunState::readProjects(const QStringList &paths)
{
    const QStringList projectFiles
        = ProjectFileList::expandAll(paths, [this](const QString &path, const QString &problem) {
              addUnread(QFileInfo(path).absoluteFilePath(), problem, -1);
          });
    for (const QString &file : projectFiles) {
        PreviewProject project;
        project.path = localPath(file);
        project.name = QFileInfo(file).completeBaseName();
        auto reader = std::make_shared<VirtualProject>();
        const qint32 status = reader->LoadProject(file);
        const qint32 index = qint32(m_result.projects.size());
        project.read
            = status == ProjectLoadStatus::Read || status == ProjectLoadStatus::LineNotDecoded;
        if (project.read && !reader->Name().isEmpty())
            project.name = reader->Name();
        m_result.projects.push_back(project);
        m_projects.push_back(project.read ? reader : nullptr);
        if (status == ProjectLoadStatus::NotFound)
            addUnread(file, QStringLiteral("No such file"), index);
        else if (!project.read)
            addUnread(file, QStringLiteral("The project file could not be opened"), index);
    }
}

void RunState::scanSources(const PreviewRun::Progress &progress, const std::atomic<bool> &cancelled)
{
    qint64 total = 0;
    for (const auto &project : m_projects)
        total += project ? project->SourceFiles()->Count() : 0;
    qint64 done = 0;
    DeclarationScanner scanner(*this);
    for (qint32 p = 0; p < qint32(m_projects.size()); ++p) {
        if (!m_projects[p])
            continue;
        m_project = p;
        m_file = -1;
        projectObject(p);
        PreviewProject &summary = m_result.projects[p];
        const auto sources = m_projects[p]->SourceFiles();
        for (qint32 i = 1; i <= sources->Count(); ++i) {
            const auto source = sources->Item(i);
            if (progress)
                progress(done, total, source->Filename());
            if (cancelled) {
                m_result.cancelled = true;
                return;
            }
            ++done;
            m_file = qint32(m_files.size());
            m_files.push_back(localPath(source->Filename()));
            QString problem;
            if (!scanner.scan(*source, problem)) {
                addUnread(source->Filename(), problem, p);
                ++summary.unreadFiles;
                continue;
            }
            const SourceLineStatistics &lines = scanner.lines();
            ++summary.files;
            summary.codeLines += lines.CodeLines();
            summary.commentLines += lines.CommentOnlyLines();
            summary.inLineCommentLines += lines.InLineCommentLines();
            summary.blankLines += lines.BlankLines();
            summary.totalLines += lines.TotalLines();
        }
    }
    if (progress)
        progress(done, total, QString());
}

void RunState::projectObject(qint32 project)
{
    const auto &reader = m_projects[project];
    DeclaredObject object;
    object.objectType = CatalogueObject::Project;
    object.name = reader->Name();
    auto properties = std::make_shared<QHash<QString, QString>>();
    const auto bag = reader->Properties();
    for (qint32 i = 1; i <= bag->Count(); ++i)
        properties->insert(bag->Key(i).toLower(), bag->Item(i).toString());
    object.properties = properties;
    declared(std::move(object));
}

void RunState::declared(DeclaredObject &&object)
{
    m_tags.learn(object);
    if (object.objectType <= 0 || object.objectType >= ObjectTypes)
        return;
    bool keep = false;
    for (const qsizetype c : m_checkersFor[object.objectType]) {
        if (m_checkers[c]->notPreviewedReason().isEmpty())
            keep = true;
        else
            ++m_notPreviewed[qMakePair(qMakePair(c, m_project),
                                       m_checkers[c]->notPreviewedReason())];
    }
    if (keep)
        m_objects.push_back({std::move(object), m_file, m_project});
}

void RunState::code(quint64 events, QStringView text, qint32 line)
{
    if ((events & m_keywords->events()) == 0)
        return;
    m_matches.clear();
    m_keywords->check(events, text, m_matches);
    for (const KeywordChecker::Match &match : m_matches) {
        const UnauthorisedKeyword &keyword = *m_keywords->keywords()[match.keyword];
        PreviewFinding finding = ruleFinding(keyword, filePath(m_file, m_project), line);
        finding.objectKind = objectKind(23); // Source
        finding.name = intern(match.text);
        finding.message
            = intern(QStringLiteral("'%1' matches the unauthorised keyword pattern '%2'")
                         .arg(match.text, keyword.Condition()));
        m_result.findings.push_back(finding);
    }
}

void RunState::checkNames()
{
    QSet<qsizetype> unknownControls;
    const bool reportUnknown
        = m_rulebase.UnknownControlViolation() && m_wants(PreviewCheck::UnknownControl);
    for (qsizetype n = 0; n < qsizetype(m_objects.size()); ++n) {
        const StoredObject &stored = m_objects[n];
        m_project = stored.project;
        for (const qsizetype c : m_checkersFor[stored.object.objectType]) {
            const NameChecker &checker = *m_checkers[c];
            if (!checker.notPreviewedReason().isEmpty())
                continue;
            const NameChecker::Result result = checker.check(stored.object, m_tags);
            const QString file = filePath(stored.file, stored.project);
            if (result.unknownControl && reportUnknown && !unknownControls.contains(n)) {
                unknownControls.insert(n);
                PreviewFinding finding = checkFinding(PreviewCheck::UnknownControl,
                                                      UnknownControlViolation,
                                                      file,
                                                      stored.object.line);
                finding.objectKind = objectKind(stored.object.objectType);
                finding.name = stored.object.name;
                finding.message = QStringLiteral("the ProgID '%1' has no control tag")
                                      .arg(stored.object.progID);
                m_result.findings.push_back(finding);
            }
            if (result.outcome == NameChecker::Outcome::NotPreviewed) {
                ++m_notPreviewed[qMakePair(qMakePair(c, stored.project), result.message)];
                continue;
            }
            if (result.outcome != NameChecker::Outcome::Violation)
                continue;
            PreviewFinding finding = ruleFinding(*checker.convention(), file, stored.object.line);
            finding.objectKind = objectKind(stored.object.objectType);
            finding.name = result.name;
            finding.message = intern(result.message);
            if (!result.advice.isEmpty())
                finding.advice = result.advice;
            m_result.findings.push_back(finding);
        }
    }
    m_objects.clear();
    m_objects.shrink_to_fit();
    // One line for each convention and project that could not be previewed, with its count.
    for (auto it = m_notPreviewed.cbegin(); it != m_notPreviewed.cend(); ++it) {
        const NameChecker &checker = *m_checkers[it.key().first.first];
        m_project = it.key().first.second;
        PreviewFinding finding
            = ruleFinding(*checker.convention(), m_result.projects[m_project].path, 0);
        finding.kind = PreviewFinding::Kind::NotPreviewed;
        finding.objectKind = objectKind(checker.convention()->ObjectType());
        finding.message
            = it.key().second
              + QStringLiteral(": %1 %2 in scope")
                    .arg(it.value())
                    .arg(it.value() == 1 ? QStringLiteral("name") : QStringLiteral("names"));
        m_result.findings.push_back(finding);
    }
}

void RunState::checkLibraries()
{
    const AuthorisedItemChecker checker(m_rulebase);
    const bool referenceEvent
        = (m_keywords->events() & ParserEvent::bit(ParserEvent::Reference)) != 0;
    for (qint32 p = 0; p < qint32(m_projects.size()); ++p) {
        if (!m_projects[p])
            continue;
        m_project = p;
        m_file = -1;
        const QString path = m_result.projects[p].path;
        std::unique_ptr<SourceTextFile> file;
        try {
            file = std::make_unique<SourceTextFile>(path);
        } catch (const std::exception &) {
            continue; // read a moment ago; nothing more to say
        }
        for (qint32 line = 1; !file->atEnd(); ++line) {
            const QString text = file->readLine();
            // The project's keys end at its first section or empty line, as the reader's do.
            if (text.isEmpty() || text.startsWith(QLatin1Char('[')))
                break;
            const bool isReference
                = text.startsWith(QLatin1String("Reference="), Qt::CaseInsensitive);
            const bool isComponent = text.startsWith(QLatin1String("Object="), Qt::CaseInsensitive);
            if (isReference && referenceEvent)
                code(ParserEvent::bit(ParserEvent::Reference), text, line);
            const qsizetype open = text.indexOf(QLatin1Char('{'));
            const qsizetype close = text.indexOf(QLatin1Char('}'), open);
            // Another project at design time has no type library to authorise.
            if ((!isReference && !isComponent) || open < 0 || close < 0)
                continue;
            const QString guid = text.mid(open, close - open + 1);
            QString version;
            QString name;
            if (isReference) {
                const auto references = m_projects[p]->References();
                const qint32 index = references->FindIndexByKey(guid);
                if (index < 1)
                    continue;
                version = references->Item(index)->Version();
                name = references->Item(index)->Description();
            } else {
                const auto components = m_projects[p]->Components();
                const qint32 index = components->FindIndexByKey(guid);
                if (index < 1)
                    continue;
                version = components->Item(index)->Version();
                name = components->Item(index)->Filename();
            }
            QString allowed;
            const auto verdict = isReference ? checker.reference(guid, version, allowed)
                                             : checker.component(guid, version, allowed);
            if (verdict == AuthorisedItemChecker::Verdict::Authorised)
                continue;
            const bool listed = verdict == AuthorisedItemChecker::Verdict::VersionNotListed;
            const QString check = isReference ? (listed ? PreviewCheck::UnauthorisedReferenceVersion
                                                        : PreviewCheck::UnauthorisedReference)
                                              : (listed ? PreviewCheck::UnauthorisedComponentVersion
                                                        : PreviewCheck::UnauthorisedComponent);
            if (!m_wants(check))
                continue;
            const qint32 type = isReference
                                    ? (listed ? ReferenceVersionViolation : ReferenceViolation)
                                    : (listed ? ComponentVersionViolation : ComponentViolation);
            PreviewFinding finding = checkFinding(check, type, path, line);
            finding.objectKind
                = isReference ? QStringLiteral("Reference") : QStringLiteral("Component");
            finding.name = name;
            const QString what
                = isReference ? QStringLiteral("reference") : QStringLiteral("component");
            finding.message
                = listed
                      ? QStringLiteral("version %1 of the %2 %3 is not authorised (authorised: %4)")
                            .arg(version, what, guid, allowed)
                      : QStringLiteral("the %1 %2 %3 is not authorised")
                            .arg(what, guid, QStringLiteral("version ") + version);
            m_result.findings.push_back(finding);
        }
    }
}

void RunState::checkTolerances()
{
    const ToleranceChecker checker(m_rulebase);
    std::vector<PreviewFinding> tolerances;
    for (qint32 p = 0; p < qint32(m_projects.size()); ++p) {
        if (!m_projects[p])
            continue;
        std::vector<PreviewFinding> own;
        for (const PreviewFinding &finding : m_result.findings) {
            if (finding.project == p)
                own.push_back(finding);
        }
        std::vector<PreviewFinding> found;
        checker.check(m_result.projects[p], p, own, found);
        for (const PreviewFinding &finding : found) {
            if (m_wants(finding.ruleId))
                tolerances.push_back(finding);
        }
    }
    m_result.findings.insert(m_result.findings.end(), tolerances.begin(), tolerances.end());
}

PreviewResult RunState::take()
{
    // Projects in the order given, the project file before its sources, then by file, line
    // and rule (rules by number, then the checks by name). Ranks are found once, so that a
    // run of many findings sorts small keys.
    std::vector<PreviewFinding> &findings = m_result.findings;
    QStringList files;
    QStringList rules;
    {
        QSet<QString> seenFiles;
        QSet<QString> seenRules;
        for (const PreviewFinding &finding : findings) {
            if (!seenFiles.contains(finding.file)) {
                seenFiles.insert(finding.file);
                files << finding.file;
            }
            if (!seenRules.contains(finding.ruleId)) {
                seenRules.insert(finding.ruleId);
                rules << finding.ruleId;
            }
        }
    }
    std::sort(files.begin(), files.end(), [](const QString &a, const QString &b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    auto ruleOrder = [](const QString &id) {
        bool number = false;
        const qint64 value = id.toLongLong(&number);
        return std::make_pair(number ? value : std::numeric_limits<qint64>::max(), id);
    };
    std::sort(rules.begin(), rules.end(), [&](const QString &a, const QString &b) {
        return ruleOrder(a) < ruleOrder(b);
    });
    QHash<QString, qint32> fileRank;
    for (qint32 i = 0; i < qint32(files.size()); ++i)
        fileRank.insert(files[i], i);
    QHash<QString, qint32> ruleRank;
    for (qint32 i = 0; i < qint32(rules.size()); ++i)
        ruleRank.insert(rules[i], i);

    struct Key
    {
        qint32 project;
        qint32 file; // -1: the project file
        qint32 line;
        qint32 rule;
        size_t index;
        bool operator<(const Key &o) const
        {
            return std::tie(project, file, line, rule, index)
                   < std::tie(o.project, o.file, o.line, o.rule, o.index);
        }
    };
    std::vector<Key> keys;
    keys.reserve(findings.size());
    for (size_t i = 0; i < findings.size(); ++i) {
        const PreviewFinding &f = findings[i];
        const bool projectFile = f.project >= 0 && f.file == m_result.projects[f.project].path;
        keys.push_back({f.project,
                        projectFile ? -1 : fileRank.value(f.file),
                        f.line,
                        ruleRank.value(f.ruleId),
                        i});
    }
    std::sort(keys.begin(), keys.end());
    std::vector<PreviewFinding> sorted;
    sorted.reserve(findings.size());
    for (const Key &key : keys)
        sorted.push_back(std::move(findings[key.index]));
    findings = std::move(sorted);
    return std::move(m_result);
}

} // namespace

qint64 PreviewResult::count(PreviewFinding::Kind kind) const
{
    return std::count_if(findings.begin(), findings.end(), [kind](const PreviewFinding &finding) {
        return finding.kind == kind;
    });
}

PreviewRun::PreviewRun(std::shared_ptr<const Rulebase> rulebase)
    : m_rulebase(std::move(rulebase))
{
}

PreviewRun::~PreviewRun() = default;

QString PreviewRun::checkTitle(const QString &check)
{
    static const QHash<QString, QString> titles = {
        {PreviewCheck::UnauthorisedComponent, QStringLiteral("Unauthorised Component")},
        {PreviewCheck::UnauthorisedComponentVersion,
         QStringLiteral("Unauthorised Component Version")},
        {PreviewCheck::UnauthorisedReference, QStringLiteral("Unauthorised Reference")},
        {PreviewCheck::UnauthorisedReferenceVersion,
         QStringLiteral("Unauthorised Reference Version")},
        {PreviewCheck::UnknownControl, QStringLiteral("Unknown Control")},
        {PreviewCheck::ToleranceCount, QStringLiteral("Maximum Violation Counts")},
        {PreviewCheck::ToleranceImpact, QStringLiteral("Maximum Violation Impact")},
        {PreviewCheck::TolerancePercentageComments,
         QStringLiteral("Minimum Percentage (%) Comments")},
        {PreviewCheck::ToleranceCyclomaticComplexity,
         QStringLiteral("Maximum Cyclomatic Complexity")},
        {PreviewCheck::UnreadFile, QStringLiteral("Files that could not be read")},
    };
    return titles.value(check);
}

QStringList PreviewRun::setRuleFilter(const QStringList &ids)
{
    m_filter.clear();
    QStringList unknown;
    const auto all = m_rulebase->RuleLists()->AllConventions();
    for (const QString &id : ids) {
        QString normalised;
        for (const QString &check : {PreviewCheck::UnauthorisedComponent,
                                     PreviewCheck::UnauthorisedComponentVersion,
                                     PreviewCheck::UnauthorisedReference,
                                     PreviewCheck::UnauthorisedReferenceVersion,
                                     PreviewCheck::UnknownControl,
                                     PreviewCheck::ToleranceCount,
                                     PreviewCheck::ToleranceImpact,
                                     PreviewCheck::TolerancePercentageComments,
                                     PreviewCheck::ToleranceCyclomaticComplexity}) {
            if (Text::same(id, check))
                normalised = check;
        }
        if (normalised.isEmpty()) {
            const qint32 number = Text::valLong(id);
            if (number > 0 && all->Contains(ruleKey(number)))
                normalised = QString::number(number);
        }
        if (normalised.isEmpty())
            unknown << id;
        else
            m_filter.insert(normalised.toLower());
    }
    return unknown;
}

bool PreviewRun::wants(const QString &id) const
{
    return m_filter.isEmpty() || m_filter.contains(id.toLower());
}

PreviewResult PreviewRun::run(const QStringList &paths)
{
    m_cancelled = false;
    RunState state(*m_rulebase, [this](const QString &id) { return wants(id); });
    state.readProjects(paths);
    state.scanSources(m_progress, m_cancelled);
    state.checkNames();
    state.checkLibraries();
    // Tolerances of part of a project would say nothing.
    if (!m_cancelled)
        state.checkTolerances();
    return state.take();
}
