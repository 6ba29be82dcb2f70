#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

// What the word at the caret may be completed with.
enum class CompletionKind : quint8 {
    None,
    QuorinMember,    // after "Quorin."
    Object,          // first argument of GetObjectProperty
    Property,        // its second argument, of `object`
    WorkfieldObject, // first argument of GetObjectWorkField
    Workfield,       // its second argument
    ParserEvent      // a string compared with Quorin.ParserEvent(), or a Case of it
};

struct CompletionContext
{
    CompletionKind kind = CompletionKind::None;
    int start = 0;  // offset in the text where the word being completed begins
    QString prefix; // the text from `start` to the caret
    QString object; // of a Property or Workfield, the object the first argument names

    friend bool operator==(const CompletionContext &, const CompletionContext &) = default;
};

// Completion of condition text: where the caret is, what may go there, and the words to offer.
// Only the caret's line is read (and, for a Case, the lines above it), so that a long script
// completes as fast as a short one.
namespace BasicCompletion {

CompletionContext contextAt(QStringView text, int position);
// Sorted ignoring case, without duplicates. `workfields` are the user's workfield names.
QStringList words(const CompletionContext &context, const QStringList &workfields = {});

} // namespace BasicCompletion
