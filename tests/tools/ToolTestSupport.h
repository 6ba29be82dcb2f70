#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <memory>

#include "support/QtPrinters.h"
#include "support/TestEnvironment.h"

class Rulebase;

// What one in-process run of qrbtool gave.
struct ToolRun
{
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs qrbtool with these arguments (no program name) on captured streams.
ToolRun runQrbTool(const QStringList &arguments);

// The JSON object a run printed; a null object (and a test failure) when it is not JSON.
QJsonObject parseJsonObject(const QString &text);

using TestEnvironment::readFile;
using TestEnvironment::writeFile;
QByteArray sampleBytes();

// 1-based number of the first line holding `marker`; 0 when none does.
int lineOf(const QByteArray &text, const QByteArray &marker);
// Replaces `from` by `to` once, on the line `linesAfter` below the first line holding
// `marker`; gives the marker's line number, 0 (and a test failure) when nothing was replaced.
int replaceOnLine(QByteArray &text,
                  const QByteArray &marker,
                  const QByteArray &from,
                  const QByteArray &to,
                  int linesAfter = 0);

// The sample rulebase as an older schema would have stored it: the attributes and elements
// the upgrades add are taken out. "6.0" or "6.1".
QByteArray sampleInOldSchema(const QString &version);

// Loads as the administrator; a message shown while loading fails the test.
std::shared_ptr<Rulebase> loadQuietly(const QString &filename);
