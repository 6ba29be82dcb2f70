#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

#include <memory>

class Rulebase;

// A small rulebase whose document every writer test knows by heart, and the ways to read a
// written document back.
namespace DocTestSupport {

// Saved nowhere; its Filename points into `folder`. Two visible categories with rules, one
// without, tag sets of a few entries, two components and two references, and a plan that
// holds all of it with the six tables.
std::shared_ptr<Rulebase> smallRulebase(const QString &folder);

QDate publishedDate();
QString organisation();

// The document as text; it is written in Windows-1252.
QString readDocument(const QString &filename);

} // namespace DocTestSupport
