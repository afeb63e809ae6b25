// The about window: fixed in size, built when it is first shown. What it says is AboutView's affair. Main thread only.
#pragma once

#include "app/OrdinaryWindowController.h"

namespace brindle {

class AboutWindowController final : public OrdinaryWindowController {
public:
    using OrdinaryWindowController::OrdinaryWindowController;

private:
    std::unique_ptr<platform::ContentView> makeContentView() override;
    Description description() const override;
};

}  // namespace brindle
