// The staging buffer in which the lines of a file list are collected before the one write.
#pragma once

#include <cstdint>

#include "base/checked.h"
#include "base/text.h"

namespace orvik::mdlSupport {

// Appends a text to one of 256 records.
void AddToListBuffer(const Text& text, std::uint8_t index);

// All text of a record, the oldest first; with `clear` the record is empty afterwards.
Text TakeListBuffer(Flag clear, std::uint8_t index);

}  // namespace orvik::mdlSupport
