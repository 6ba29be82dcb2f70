#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;
enum class ObjectListType;

// The pickers the condition editor opens: the object and parser event picker dialogs, unless
// tests install their own answers.
namespace RuleEditorPickers {

struct ObjectRequest
{
    int selectionMode = 2; // 2 a property, 3 a workfield
    ObjectListType listType;
    QStringList *workfields = nullptr; // the user's names, extended by a new one
};

// The selection as "%Object.Property%" or "%Object.WF.Workfield%"; empty when cancelled.
using ObjectPicker = std::function<QString(QWidget *parent, const ObjectRequest &request)>;
// The chosen node's text; empty when cancelled.
using EventPicker = std::function<QString(QWidget *parent, qint32 ruleType)>;

QString pickObject(QWidget *parent, const ObjectRequest &request);
QString pickParserEvent(QWidget *parent, qint32 ruleType);

// An empty function puts back the picker dialog.
void setObjectPicker(ObjectPicker picker);
void setEventPicker(EventPicker picker);

} // namespace RuleEditorPickers
