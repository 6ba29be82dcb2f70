#pragma once

#include "tools/QrbTool.h"
