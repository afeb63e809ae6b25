// The numbers by which macOS tells a script's errors apart, as far as they occur here.
#pragma once

#include <cstdint>

namespace desk::applescript::ErrorNumber {

inline constexpr std::int64_t fileNotFound = -43;
inline constexpr std::int64_t outOfMemory = -108;
inline constexpr std::int64_t applicationNotRunning = -600;
inline constexpr std::int64_t badCoercion = -1700;
inline constexpr std::int64_t notUnderstood = -1708;
inline constexpr std::int64_t timedOut = -1712;
inline constexpr std::int64_t noSuchObject = -1728;
inline constexpr std::int64_t notAuthorized = -1743;
inline constexpr std::int64_t unspecified = -2700;
inline constexpr std::int64_t stackOverflow = -2706;
inline constexpr std::int64_t misplacedToken = -2740;
inline constexpr std::int64_t syntaxError = -2741;
inline constexpr std::int64_t undefinedVariable = -2753;
inline constexpr std::int64_t noResult = -2763;
inline constexpr std::int64_t handlerFailed = -10000;
inline constexpr std::int64_t writeDenied = -10006;

}  // namespace desk::applescript::ErrorNumber
