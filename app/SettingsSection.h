// A titled part of the settings window: the title with its symbol, and a box around what `content` answers, which is a
// stack of the user's choosing.
#pragma once

#include <string>
#include <utility>

#include "views/Views.h"

namespace brindle {

template <typename Content>
struct SettingsSection {
    std::string title;
    std::string symbol;
    Content content;

    views::View body() const {
        using namespace views;
        return VStack(
            {.alignment = HorizontalAlignment::leading, .spacing = 10},
            Label(title, symbol).font({15, FontWeight::semibold}),
            content().padding(14).background(RoundedRectangle(10).fill(Color::of(ColorRole::controlBackground))));
    }
};

template <typename Content>
SettingsSection(const char*, const char*, Content) -> SettingsSection<Content>;

}  // namespace brindle
