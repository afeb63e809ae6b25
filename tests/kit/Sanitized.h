// Whether this build is slowed down by a sanitizer: what takes many rounds takes fewer then.
#pragma once

namespace kit {

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define ORVANE_IS_SANITIZED
#endif
#endif

#ifdef ORVANE_IS_SANITIZED
inline constexpr bool isSanitized = true;
#else
inline constexpr bool isSanitized = false;
#endif

}  // namespace kit
