#include "gui/editor/RuleEditorPickers.h"

#include "gui/dialogs/frmObjectProperty.h"
#include "gui/dialogs/frmParserEvent.h"

namespace {

RuleEditorPickers::ObjectPicker &objectPicker()
{
    static RuleEditorPickers::ObjectPicker picker;
    return picker;
}

RuleEditorPickers::EventPicker &eventPicker()
{
    static RuleEditorPickers::EventPicker picker;
    return picker;
}

// The picker dialogs of the convention editors serve the condition editor too.
QString runObjectPicker(QWidget *parent, const RuleEditorPickers::ObjectRequest &request)
{
    frmObjectProperty picker(parent);
    picker.setSelectionMode(request.selectionMode);
    picker.setObjectListType(request.listType);
    picker.setWorkfields(request.workfields);
    picker.exec();
    return picker.Cancelled() ? QString() : picker.UserSelection();
}

QString runEventPicker(QWidget *parent, qint32 ruleType)
{
    frmParserEvent picker(parent);
    picker.setRuleType(ruleType);
    picker.exec();
    return picker.Cancelled() ? QString() : picker.ParserEvent();
}

} // namespace

namespace RuleEditorPickers {

QString pickObject(QWidget *parent, const ObjectRequest &request)
{
    return objectPicker() ? objectPicker()(parent, request) : runObjectPicker(parent, request);
}

QString pickParserEvent(QWidget *parent, qint32 ruleType)
{
    return eventPicker() ? eventPicker()(parent, ruleType) : runEventPicker(parent, ruleType);
}

void setObjectPicker(ObjectPicker picker)
{
    objectPicker() = std::move(picker);
}

void setEventPicker(EventPicker picker)
{
    eventPicker() = std::move(picker);
}

} // namespace RuleEditorPickers
