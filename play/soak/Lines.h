// Writing lines of a desk script: quoting of words, numbers in their shortest form.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Geometry.h"

namespace play {

std::string numberWord(double value);
std::string numberWord(std::int64_t value);
std::string numberWord(int value);
// In quotation marks if it needs them.
std::string textWord(std::string_view text);
std::string frameWords(const platform::CGRect& frame);
// With a blank between any two; empty words are left out.
std::string joinWords(const std::vector<std::string>& words);

}  // namespace play
