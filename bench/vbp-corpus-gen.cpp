// vbp-corpus-gen FOLDER: writes a generated corpus of VB projects and groups into FOLDER, with
// FOLDER/arguments.txt (what to pass to `qrbtool stats`, one a line) and FOLDER/reads.txt (every
// file a count reads, once per read, NUL-separated for `wc -l --files0-from`).
#include "bench/ProjectCorpusGenerator.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

namespace {

bool writeList(const QString &path, const QStringList &items, char separator)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (const QString &item : items)
        file.write(item.toUtf8() + separator);
    return file.error() == QFileDevice::NoError;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 2) {
        QTextStream(stderr) << "usage: vbp-corpus-gen FOLDER" << Qt::endl;
        return 2;
    }
    const ProjectCorpus corpus = generateProjectCorpus(args.at(1));
    if (!writeList(args.at(1) + QStringLiteral("/arguments.txt"), corpus.arguments, '\n')
        || !writeList(args.at(1) + QStringLiteral("/reads.txt"), corpus.reads, '\0'))
        return 1;
    QTextStream(stdout) << corpus.projects << " projects, " << corpus.reads.size()
                        << " file reads, " << corpus.sourceLines << " source lines, "
                        << corpus.bytes << " bytes" << Qt::endl;
    return 0;
}
