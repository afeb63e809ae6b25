// Why a navigation didn't happen. FinderNavigationService throws it; description() is the sentence that the bar shows
// its user. It doesn't say which path was meant.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace brindle {

class FinderNavigationError : public std::exception {
public:
    enum class Case { appleScriptFailed, invalidPath, notDirectory };

    static FinderNavigationError appleScriptFailed(std::string message) {
        return {Case::appleScriptFailed, std::move(message)};
    }
    static FinderNavigationError invalidPath() { return {Case::invalidPath, "The folder could not be found."}; }
    static FinderNavigationError notDirectory() { return {Case::notDirectory, "The entered path is not a folder."}; }

    Case kind() const { return failure; }
    const std::string& description() const { return text; }
    const char* what() const noexcept override { return text.c_str(); }

private:
    FinderNavigationError(Case theFailure, std::string theText) : failure(theFailure), text(std::move(theText)) {}

    Case failure;
    std::string text;
};

}  // namespace brindle
