# Two layers, the lower of which includes the upper.
set(QUORIN_CORE_LAYERS platform tools)
set(QUORIN_LAYER_USES_platform)
set(QUORIN_LAYER_USES_tools platform)
