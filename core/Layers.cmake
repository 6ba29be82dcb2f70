# The folders of core/, lowest first, and the folders each may include. Each folder is a
# library that links only these, so an include that runs back up the list fails to link;
# the Layers test checks every include against this table as well.
set(QUORIN_CORE_LAYERS
  platform typelib collections xml rulebase controls vocabulary basic project preview docs
  editors views application tools)

set(QUORIN_LAYER_USES_platform)
set(QUORIN_LAYER_USES_typelib)
set(QUORIN_LAYER_USES_collections platform)
set(QUORIN_LAYER_USES_xml platform)
set(QUORIN_LAYER_USES_rulebase platform collections xml)
set(QUORIN_LAYER_USES_controls platform collections rulebase)
set(QUORIN_LAYER_USES_vocabulary platform rulebase controls)
set(QUORIN_LAYER_USES_basic platform rulebase vocabulary)
set(QUORIN_LAYER_USES_project platform collections rulebase typelib)
set(QUORIN_LAYER_USES_preview platform collections rulebase vocabulary project)
set(QUORIN_LAYER_USES_docs platform collections rulebase)
set(QUORIN_LAYER_USES_editors
  platform collections rulebase controls vocabulary basic project docs)
set(QUORIN_LAYER_USES_views platform collections rulebase controls vocabulary project editors)
set(QUORIN_LAYER_USES_application platform collections rulebase controls docs editors views)
set(QUORIN_LAYER_USES_tools
  platform collections xml rulebase vocabulary basic project preview docs editors)
