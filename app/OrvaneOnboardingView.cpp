#include "app/OrvaneOnboardingView.h"

#include <utility>

#include "app/AboutView.h"
#include "app/FakeSystemToggle.h"

namespace brindle {

using namespace views;

namespace {

constexpr double guideWidth = 620;
constexpr double guideHeight = 540;
constexpr platform::Duration timeBeforeRequest{700'000'000};
constexpr platform::Duration timeBetweenLooks{1'000'000'000};

ColorRole statusColor(bool isComplete) {
    return isComplete ? ColorRole::green : ColorRole::orange;
}

View framed(View content, const Shape& shape, double borderOpacity) {
    return std::move(content)
        .background(shape.fill(Color::of(ColorRole::controlBackground)))
        .overlay(shape.stroke(Color::of(ColorRole::primary, borderOpacity), 1));
}

View toggleGuide(View content, double height) {
    return framed(std::move(content).padding(Edge::horizontal, 9).frame({.width = 270, .height = height}),
                  RoundedRectangle(7), 0.09);
}

}  // namespace

OrvaneOnboardingView::OrvaneOnboardingView(platform::Platform& thePlatform,
                                           AccessibilityManager& theAccessibilityManager,
                                           FinderAutomationPermissionManager& theAutomationManager, Callbacks callbacks)
    : platform(thePlatform),
      accessibilityManager(theAccessibilityManager),
      automationManager(theAutomationManager),
      requestAccessibility(std::move(callbacks.requestAccessibility)),
      permissionsGranted(std::move(callbacks.permissionsGranted)),
      close(std::move(callbacks.close)),
      appIcon(AboutView(thePlatform).appIcon()) {}

void OrvaneOnboardingView::connect(Context& context) {
    context.connect(accessibilityManager, automationManager, requestedAccessibility, reportedPermissionsGranted);
}

View OrvaneOnboardingView::body() const {
    const auto report = [this] { reportPermissionsGrantedIfNeeded(); };
    return VStack({.spacing = 22}, header(), steps(), Divider(), footer())
        .buttonStyle(ButtonStyle::bordered)
        .padding(24)
        .frame({.width = guideWidth, .height = guideHeight})
        .background(Color::of(ColorRole::windowBackground))
        .onChange(isTrusted(), report)
        .onChange(automationStatus(), report)
        .task([this] { return poll(platform.dispatch, *this); });
}

View OrvaneOnboardingView::header() const {
    return VStack({.spacing = 8}, icon(76), Text("Welcome to Orvane").font({25, FontWeight::semibold}),
                  Text("Two macOS permissions are needed to track Finder windows and navigate paths.")
                      .font({13})
                      .foregroundStyle(ColorRole::secondary));
}

View OrvaneOnboardingView::icon(double side) const {
    return Image(appIcon)
        .resizable()
        .interpolation(platform::ImageInterpolation::high)
        .frame({.width = side, .height = side});
}

View OrvaneOnboardingView::steps() const {
    return VStack({.spacing = 12}, accessibilityStep(), automationStep(), automationMessage());
}

View OrvaneOnboardingView::accessibilityStep() const {
    View actions = VStack({.alignment = HorizontalAlignment::trailing, .spacing = 7}, permissionStatus(isTrusted()));
    if (!isTrusted()) actions.addChildren(Button("Grant Access", requestAccessibility));
    return permissionStep({"1", "Allow Accessibility",
                           "Used only to read Finder window position and size and keep the address bar attached.",
                           isTrusted(), accessibilityToggleGuide(), std::move(actions)});
}

View OrvaneOnboardingView::automationStep() const {
    const bool isAllowed = automationStatus() == Status::allowed;
    View actions = VStack({.alignment = HorizontalAlignment::trailing, .spacing = 7}, permissionStatus(isAllowed));
    if (!isAllowed)
        actions.addChildren(Button(automationButtonTitle(), [this] {
                                automationButtonPressed();
                            }).disabled(!isTrusted() || automationManager->isRequesting.get()));
    return permissionStep({"2", "Allow Finder Control",
                           "Used to read the current path, move to a typed path, and select files in Finder.",
                           isAllowed, automationToggleGuide(), std::move(actions)});
}

void OrvaneOnboardingView::automationButtonPressed() const {
    if (automationStatus() == Status::denied)
        automationManager->openSystemSettings();
    else
        automationManager->requestAccess();
}

std::string OrvaneOnboardingView::automationButtonTitle() const {
    if (automationStatus() == Status::denied) return "Open Automation Settings";
    return automationManager->isRequesting.get() ? "Requesting…" : "Allow Finder Access";
}

View OrvaneOnboardingView::automationMessage() const {
    const Status& status = automationStatus();
    const bool isFault = status.kind == Status::denied || status.kind == Status::failed;
    return Text(automationMessageText())
        .font({12})
        .foregroundStyle(isFault ? ColorRole::red : ColorRole::secondary)
        .frame({.maxWidth = infinity, .alignment = Alignment::leading});
}

std::string OrvaneOnboardingView::automationMessageText() const {
    switch (automationStatus().kind) {
    case Status::allowed:
        return "Finder access is enabled.";
    case Status::denied:
        return "Turn on Orvane in System Settings, then return here.";
    case Status::failed:
        return automationStatus().message;
    case Status::notChecked:
        break;
    }
    return isTrusted() ? "Finder control permission is required. Approve the macOS permission prompt to continue."
                       : "Complete Accessibility first. Finder control permission will be requested next.";
}

View OrvaneOnboardingView::footer() const {
    return HStack({},
                  Text("You can reopen this guide from the Orvane menu bar icon.")
                      .font({11})
                      .foregroundStyle(ColorRole::secondary),
                  Spacer(), Button("Close", close).keyboardShortcut(KeyboardShortcut::defaultAction));
}

View OrvaneOnboardingView::permissionStep(PermissionStep step) {
    View texts = VStack({.alignment = HorizontalAlignment::leading, .spacing = 5},
                        Text(step.title).font({15, FontWeight::semibold}),
                        Text(step.detail).font({12}).foregroundStyle(ColorRole::secondary), std::move(step.extra));
    View row = HStack({.alignment = VerticalAlignment::top, .spacing = 14}, statusMark(step.number, step.isComplete),
                      std::move(texts), Spacer(12), std::move(step.actions));
    return framed(std::move(row).padding(16), RoundedRectangle(12), 0.08);
}

View OrvaneOnboardingView::statusMark(const char* number, bool isComplete) {
    View symbol = isComplete ? Image("checkmark").font({13, FontWeight::semibold})
                             : Image(std::string(number) + ".circle.fill").font({15, FontWeight::semibold});
    return ZStack({}, Circle().fill(Color::of(statusColor(isComplete))),
                  std::move(symbol).foregroundStyle(ColorRole::white))
        .frame({.width = 30, .height = 30});
}

View OrvaneOnboardingView::permissionStatus(bool isComplete) {
    const ColorRole color = statusColor(isComplete);
    return Text(isComplete ? "Allowed" : "Setup Required")
        .font({11, FontWeight::semibold})
        .foregroundStyle(color)
        .padding({.top = 4, .leading = 9, .bottom = 4, .trailing = 9})
        .background(Capsule().fill(Color::of(color, 0.12)));
}

View OrvaneOnboardingView::accessibilityToggleGuide() const {
    return toggleGuide(HStack({.spacing = 8},
                              Text("In System Settings:").font({10}).foregroundStyle(ColorRole::secondary), icon(16),
                              Text("Orvane").font({11, FontWeight::medium}), FakeSystemToggle()),
                       30);
}

View OrvaneOnboardingView::automationToggleGuide() const {
    constexpr double rowHeight = 25;
    constexpr double indent = 23;
    View application = HStack({.spacing = 7}, icon(16), Text("Orvane").font({11, FontWeight::semibold}));
    View target = HStack({}, Text("Finder").font({11, FontWeight::medium}), Spacer(), FakeSystemToggle());
    return toggleGuide(VStack({.alignment = HorizontalAlignment::leading, .spacing = 0},
                              std::move(application).frame({.height = rowHeight}),
                              Divider().padding(Edge::leading, indent),
                              std::move(target).frame({.height = rowHeight}).padding(Edge::leading, indent)),
                       2 * rowHeight + 1);
}

Task OrvaneOnboardingView::poll(platform::Dispatch& /*dispatch*/, OrvaneOnboardingView view) {
    if (!view.isTrusted() && !view.requestedAccessibility.get()) {
        view.requestedAccessibility.set(true);
        co_await Task::sleep(timeBeforeRequest);
        view.requestAccessibility();
    }
    while (true) {
        view.look();
        co_await Task::sleep(timeBetweenLooks);
    }
}

void OrvaneOnboardingView::look() const {
    accessibilityManager->isTrusted.setIfChanged(platform.accessibility.AXIsProcessTrusted());
    if (isTrusted() && !automationManager->isRequesting.get() && !automationManager->isRefreshing())
        automationManager->refresh();
    reportPermissionsGrantedIfNeeded();
}

void OrvaneOnboardingView::reportPermissionsGrantedIfNeeded() const {
    if (!isTrusted() || automationStatus() != Status::allowed || reportedPermissionsGranted.get()) return;
    reportedPermissionsGranted.set(true);
    permissionsGranted();
}

}  // namespace brindle
