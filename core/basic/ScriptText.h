#pragma once

#include <QString>

// Conditions are stored with CR LF line ends; an editing widget works with LF alone.
namespace ScriptText {

// Every CR LF, and any lone CR, becomes LF.
QString toEditor(const QString &text);
// Every line end, whatever its form, becomes CR LF.
QString fromEditor(const QString &text);

} // namespace ScriptText
