#pragma once

#include <string>

#include "check/Vocabulary.h"

namespace reference {

std::string nameOf(const check::ElementEntry& entry);
std::string nameOf(const check::AttributeEntry& attribute);
/// How many of it make sense, what it is and what is lost without it, in sentences.
std::string summaryOf(const check::ElementEntry& entry);

/// False for what is only there to be warned of.
bool isWorthWriting(const check::AttributeEntry& attribute);

/// "text", "id of asset in assets".
std::string kindOf(const check::AttributeEntry& attribute);

}  // namespace reference
