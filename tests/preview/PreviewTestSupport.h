#pragma once

#include "support/QtPrinters.h"

#include <QString>

#include <initializer_list>
#include <memory>
#include <utility>

class NamingConvention;
class UnauthorisedKeyword;

// The projects written for these tests: every object kind, in CRLF and LF, Windows-1252 and
// UTF-8.
QString kindsDir();

// A naming convention on one object type with these (PSType, Value) prefix and suffix items;
// each part is switched on when it has items.
std::shared_ptr<NamingConvention>
namingConvention(qint32 objectType,
                 std::initializer_list<std::pair<qint32, const char *>> prefix,
                 std::initializer_list<std::pair<qint32, const char *>> suffix = {});

// An unauthorised keyword with this pattern at these parser events.
std::shared_ptr<UnauthorisedKeyword> unauthorisedKeyword(const char *pattern,
                                                         std::initializer_list<qint32> events);
