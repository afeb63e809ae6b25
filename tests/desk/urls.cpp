// Which texts are URLs.
#include <gtest/gtest.h>

#include "platform/URL.h"

namespace {

TEST(URL, IsWhatTheRulesAllowToTheLetter) {
    for (const char* text :
         {"https://velmora.com", "https://velmora.com/a%20b?x=1&y=/?#f", "velmora.com", "mailto:a@b.c", "//host/path",
          "a/b:c", "http://user:pass@[::1]:8080/", "?q", "#f", "file:///Users/ana", "http://host:"})
        EXPECT_EQ(platform::URLWithString(text), text);
    for (const char* text :
         {"", " ", "https://velmora.com ", "my site", "http://a b/", "http://é.com", "100%", "%4", "1a:b", ":x",
          "http://[::1", "http://[]/", "http://host:8a/", "http://a@b@c/", "a<b>", "a\\b", "?x=[", "a#b#c", "\n"})
        EXPECT_FALSE(platform::URLWithString(text)) << '"' << text << '"';
}

}  // namespace
