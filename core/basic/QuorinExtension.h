#pragma once

#include <QString>
#include <QStringView>

#include <span>

// One call of the reviewer's `Quorin` object that conditions may make.
struct QuorinMember
{
    QStringView name;
    int argumentCount;
    QStringView signature; // for an editor's completion list
    QStringView description;
};

// What the condition language knows of the `Quorin` extension, and the vocabulary checks of
// the names that scripts pass to it. A check gives an empty text when the name is known, else
// the message to show (the checker makes an unknown member or object an error, the rest
// warnings).
namespace QuorinExtension {

inline constexpr QStringView Prefix = u"Quorin.";

// In the order the editor offers them.
std::span<const QuorinMember> members();
// Case is ignored; nullptr for a name the extension does not have.
const QuorinMember *findMember(QStringView name);

QString memberWarning(QStringView name);
QString objectWarning(const QString &object);
// For an object the vocabulary knows.
QString propertyWarning(const QString &object, const QString &property);
QString workfieldObjectWarning(const QString &object);
QString parserEventWarning(const QString &event);

// True for the name of a catalogue object, a property or a parser event, ignoring case; an
// editor colours such names inside strings.
bool isVocabularyName(const QString &name);

} // namespace QuorinExtension
