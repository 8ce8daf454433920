// What a field's declared type makes of a value that is written into it, and of a declaration.
#pragma once

#include "store/Database.h"

#include <string>
#include <string_view>

namespace trekor {

// The value as the field holds it. False, and `into` unchanged, when it does not fit. Null fits everywhere.
bool FitToField(const FieldDefinition& field, const FieldValue& value, FieldValue& into);

// "TEXT(50)" and the other declarations, without regard to case; unknown words go by what they contain.
FieldType TypeOfDeclaration(std::string_view declaration);
// The length in brackets; 0 without one.
int SizeOfDeclaration(std::string_view declaration);
std::string DeclarationOf(const FieldDefinition& field);

std::string QuotedName(std::string_view name);  // for use as an identifier
std::string LiteralOf(const FieldValue& value); // for use as a constant

} // namespace trekor
