#pragma once

#include <QString>

// One thing a preview reports: a name or line a rule would report, a library or tolerance
// the rulebase does not allow, what could not be previewed and why, or a file that could not
// be read.
struct PreviewFinding
{
    enum class Kind {
        Violation,
        NotPreviewed, // the message says why: "not previewed (needs its condition)"
        Unread,       // a project, group or source file that could not be read
    };

    Kind kind = Kind::Violation;
    // The rule's id ("5000"), or for the checks that belong to no rule one of PreviewCheck.
    QString ruleId;
    // The rule's key ("5000Key"); the check's id otherwise.
    QString ruleKey;
    // RuleTypes of the rule; 0 for the checks that belong to no rule.
    qint32 ruleType = 0;
    QString ruleTitle;
    // The catalogue's name of the object's type: "Variable (Local)", "File (Form)".
    QString objectKind;
    QString name;
    // Absolute path of the source, project or group file; the line is 1-based, 0 for the
    // file as a whole.
    QString file;
    qint32 line = 0;
    QString message;
    QString advice;
    // Of the violation the rule defines (or the default violation of a check).
    qint32 severity = 0;
    qint16 impact = 0;
    // Index of its project in the result; -1 when it belongs to none.
    qint32 project = -1;
};

// The ids of the checks that belong to no rule.
namespace PreviewCheck {
inline const QString UnauthorisedComponent = QStringLiteral("UnauthorisedComponent");
inline const QString UnauthorisedComponentVersion = QStringLiteral("UnauthorisedComponentVersion");
inline const QString UnauthorisedReference = QStringLiteral("UnauthorisedReference");
inline const QString UnauthorisedReferenceVersion = QStringLiteral("UnauthorisedReferenceVersion");
inline const QString UnknownControl = QStringLiteral("UnknownControl");
inline const QString ToleranceCount = QStringLiteral("ToleranceCount");
inline const QString ToleranceImpact = QStringLiteral("ToleranceImpact");
inline const QString TolerancePercentageComments = QStringLiteral("TolerancePercentageComments");
inline const QString ToleranceCyclomaticComplexity
    = QStringLiteral("ToleranceCyclomaticComplexity");
inline const QString UnreadFile = QStringLiteral("UnreadFile");
} // namespace PreviewCheck
