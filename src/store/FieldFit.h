// What a field's declared type makes of a value that is written into it; reading and writing of declarations.
#pragma once

#include "store/Database.h"

#include <string>
#include <string_view>

namespace trekor {

// The value as the field holds it. False, and `into` unchanged, when it does not fit. Null fits everywhere.
bool FitToField(const FieldDefinition& field, const FieldValue& value, FieldValue& into);

// "TEXT(50)" and the other declarations, without regard to case. An unknown word goes by a known one that it contains
// ("VARCHAR" is a text), else it is REAL; none at all is a text.
FieldType TypeOfDeclaration(std::string_view declaration);
// The length in brackets; 0 without one.
int SizeOfDeclaration(std::string_view declaration);
std::string DeclarationOf(const FieldDefinition& field);

std::string QuotedName(std::string_view name);  // as an identifier in a statement
std::string LiteralOf(const FieldValue& value); // as a constant in a statement

} // namespace trekor
