#include "tools/ToolBackends.h"

#include "docs/RulebaseDocCreator.h"
#include "editors/RulebaseDocCreatorForm.h"
#include "platform/QuorinAdminData.h"
#include "platform/RegistryUtils.h"
#include "project/AuthorisedItemsMerger.h"
#include "project/ProjectCandidates.h"
#include "project/modQuorinUtils.h"
#include "rulebase/AuthorisedComponent.h"
#include "rulebase/AuthorisedReference.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/ScriptFile.h"
#include "tools/ConsoleUserInterface.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"
#include "tools/ToolRulebaseLoader.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>

#include <algorithm>

// Each function below is where its feature plugs in, keeping to the request, the exit codes and
// the rule that a failed run leaves no partial file behind.

namespace {

void fail(ToolContext &context, const QString &command, const QString &text)
{
    context.endProgress();
    context.err() << "qrbtool " << command << ": " << text << '\n';
    context.err().flush();
}

// The boxes a step showed, below the line that says what failed.
void failWith(ToolContext &context,
              const QString &command,
              const QString &text,
              const QStringList &messages)
{
    fail(context, command, text);
    for (const QString &message : messages)
        context.err() << "  " << message << '\n';
    context.err().flush();
}

// The rulebase whole, or null after saying why not: a part read would give a document without
// some of the rules, or a saved file that has lost them.
std::shared_ptr<Rulebase>
loadWhole(const QString &filename, const QString &command, ToolContext &context)
{
    const LoadedRulebase loaded = ToolRulebaseLoader::load(filename);
    if (!loaded.whole()) {
        failWith(context,
                 command,
                 filename + QStringLiteral(": could not be read completely; nothing written"),
                 loaded.messages);
        return nullptr;
    }
    return loaded.rulebase;
}

bool sameFile(const QString &a, const QString &b)
{
    return QFileInfo(a).absoluteFilePath() == QFileInfo(b).absoluteFilePath();
}

// The organisation the program remembers, read without the settings object, whose end would
// write every setting back.
QString rememberedOrganisation()
{
    return RegistryUtils::GetRegString(QuorinAdminData::settingsKey(),
                                       QStringLiteral("LastCompanyName"),
                                       QString(),
                                       RegistryUtils::HKEY_CURRENT_USER)
        .trimmed();
}

QString quoted(const QString &text)
{
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

QString versionText(const QString &version)
{
    return version.isEmpty() ? QStringLiteral("all versions")
                             : QStringLiteral("version ") + version;
}

QString changeName(const AuthorisedItemChange &change)
{
    if (change.component)
        return change.component->Filename();
    const QString description = change.reference->Description();
    return description.isEmpty() ? change.reference->Filename() : description;
}

QString changeLine(const AuthorisedItemChange &change)
{
    const QString kind = change.kind == AuthorisedItemChange::Kind::Component
                             ? QStringLiteral("component")
                             : QStringLiteral("reference");
    QString item = kind + QLatin1Char(' ') + quoted(changeName(change));
    // A project used at design time stands with no library id.
    if (!change.libID().isEmpty())
        item += QLatin1Char(' ') + change.libID();
    if (change.added)
        return QStringLiteral("added ") + item + QStringLiteral(", ") + versionText(change.version);
    return QStringLiteral("added ") + versionText(change.version) + QStringLiteral(" to ") + item
           + QStringLiteral(", now ") + change.versionList();
}

// Components before references, each by name and library, whatever order the sources came in.
std::vector<AuthorisedItemChange> sortedChanges(std::vector<AuthorisedItemChange> changes)
{
    std::stable_sort(changes.begin(),
                     changes.end(),
                     [](const AuthorisedItemChange &a, const AuthorisedItemChange &b) {
                         if (a.kind != b.kind)
                             return a.kind == AuthorisedItemChange::Kind::Component;
                         const int byName
                             = QString::compare(changeName(a), changeName(b), Qt::CaseInsensitive);
                         if (byName != 0)
                             return byName < 0;
                         return QString::compare(a.libID(), b.libID(), Qt::CaseInsensitive) < 0;
                     });
    return changes;
}

QString countText(qint32 count, const char *one, const char *many)
{
    return QString::number(count) + QLatin1Char(' ') + QLatin1String(count == 1 ? one : many);
}

// The whole rulebase for a command that writes `output`, which must not be the rulebase itself.
std::shared_ptr<Rulebase> loadForOutput(const QString &rulebase,
                                        const QString &output,
                                        const QString &command,
                                        ToolContext &context)
{
    if (sameFile(output, rulebase)) {
        fail(context, command, output + QStringLiteral(": is the rulebase itself"));
        return nullptr;
    }
    return loadWhole(rulebase, command, context);
}

} // namespace

namespace ToolBackends {

int writeDocument(const DocRequest &request, ToolContext &context)
{
    const QString command = QStringLiteral("doc");
    const std::shared_ptr<Rulebase> rulebase
        = loadForOutput(request.rulebase, request.output, command, context);
    if (!rulebase)
        return ToolExit::Failure;

    // The plan as the designer shows it: reconciled with the categories and rules as they
    // stand, or made afresh when none was stored. The rulebase is not saved, so the file keeps
    // its own plan.
    RulebaseDocCreatorForm designer;
    designer.setRulebase(rulebase);

    RulebaseDocCreator writer;
    writer.setTargetFilename(request.output);
    // Never the writer's question: the organisation given, else the remembered one, else a
    // stand-in that the reader sees is one.
    QString organisation = request.organisation.trimmed();
    if (organisation.isEmpty())
        organisation = rememberedOrganisation();
    if (organisation.isEmpty()) {
        organisation = QStringLiteral("Your Organisation");
        context.err() << "qrbtool " << command
                      << ": warning: no organisation given (--organisation NAME) and none "
                         "remembered by QuorinAdmin; the document names \""
                      << organisation << "\"\n";
        context.err().flush();
    }
    writer.setOrganisation(organisation);
    ConsoleUserInterface recorder(nullptr);
    QString written;
    if (!writer.CreateDocumentation(*rulebase, written)) {
        failWith(context,
                 command,
                 request.output + QStringLiteral(": the document could not be written"),
                 recorder.takeMessages());
        return ToolExit::Failure;
    }
    context.out() << request.rulebase << ": document written to " << written << '\n';
    return ToolExit::Ok;
}

int writeConditionScripts(const ScriptsRequest &request, ToolContext &context)
{
    const QString command = QStringLiteral("scripts");
    const std::shared_ptr<Rulebase> rulebase
        = loadForOutput(request.rulebase, request.output, command, context);
    if (!rulebase)
        return ToolExit::Failure;

    // The program writes the file into the temporary folder under its own name; the tool
    // takes the same text and writes it where it is told.
    ScriptFile file;
    const qint32 conditions = rulebase->RuleLists()->AddScriptsTo(file);
    const QByteArray bytes = file.ScriptText().toUtf8();
    QSaveFile out(request.output);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.commit()) {
        fail(context,
             command,
             request.output + QStringLiteral(": the condition script file could not be written: ")
                 + out.errorString());
        return ToolExit::Failure;
    }
    context.out() << request.rulebase << ": " << countText(conditions, "condition", "conditions")
                  << " written to " << request.output << '\n';
    return ToolExit::Ok;
}

int importAuthorisedItems(const ImportRequest &request, ToolContext &context)
{
    const QString command = QStringLiteral("import");
    for (const QString &source : request.sources) {
        if (!modQuorinUtils::IsVBPFile(source) && !modQuorinUtils::IsVBGFile(source)
            && !AuthorisedItemsMerger::IsActiveXFilename(source)) {
            fail(context,
                 command,
                 source
                     + QStringLiteral(": not a project (.vbp), group (.vbg) or ActiveX file "
                                      "(.dll, .exe, .ocx, .tlb, .olb)"));
            return ToolExit::Failure;
        }
    }
    const std::shared_ptr<Rulebase> rulebase = loadWhole(request.rulebase, command, context);
    if (!rulebase)
        return ToolExit::Failure;

    // One source after the other, each against the rulebase as the ones before left it, as if
    // each had been dropped on the view in turn with every candidate ticked.
    AuthorisedItemsMerger merger(*rulebase);
    QStringList unread;
    for (qsizetype n = 0; n < request.sources.size(); ++n) {
        const QString &source = request.sources.at(n);
        context.progress(QStringLiteral("Reading %1 (%2 of %3)")
                             .arg(source)
                             .arg(n + 1)
                             .arg(request.sources.size()));
        if (modQuorinUtils::IsVBPFile(source) || modQuorinUtils::IsVBGFile(source)) {
            ProjectCandidates importer;
            importer.GatherCandidates({source}, rulebase);
            for (const QString &project : importer.UnreadFiles())
                unread << project + QStringLiteral(": the project could not be read");
            merger.MergeSelected(*importer.ComponentList(), *importer.ReferenceList());
        } else if (merger.MergeActiveXFile(source) != ActiveXFileResult::Merged) {
            unread << source + QStringLiteral(": holds no type library that can be read");
        }
    }
    context.endProgress();

    for (const QString &line : unread)
        fail(context, command, line);
    const std::vector<AuthorisedItemChange> changes = sortedChanges(merger.Changes());
    for (const AuthorisedItemChange &change : changes)
        context.out() << changeLine(change) << '\n';

    qint32 components = 0;
    qint32 references = 0;
    for (const AuthorisedItemChange &change : changes) {
        if (change.added)
            ++(change.kind == AuthorisedItemChange::Kind::Component ? components : references);
    }
    const qint32 versions = qint32(changes.size()) - components - references;
    QString summary = countText(components, "component", "components") + QStringLiteral(", ")
                      + countText(references, "reference", "references") + QStringLiteral(" and ")
                      + countText(versions, "version", "versions") + QStringLiteral(" added");

    if (changes.empty()) {
        context.out() << request.rulebase << ": nothing new; not written\n";
    } else if (request.dryRun) {
        context.out() << request.rulebase << ": " << summary << "; not written (--dry-run)\n";
    } else {
        ConsoleUserInterface recorder(nullptr);
        RulebaseManager manager;
        if (!manager.Save(*rulebase, request.rulebase)) {
            failWith(context,
                     command,
                     request.rulebase + QStringLiteral(": could not be saved; left as it was"),
                     recorder.takeMessages());
            return ToolExit::Failure;
        }
        context.out() << request.rulebase << ": " << summary << "; saved as version "
                      << rulebase->Version() << '\n';
    }
    return unread.isEmpty() ? ToolExit::Ok : ToolExit::Findings;
}

int notAvailable(const QString &command, ToolContext &context)
{
    context.err() << "qrbtool: '" << command << "' is not available in this build\n";
    context.err().flush();
    return ToolExit::Failure;
}

} // namespace ToolBackends
