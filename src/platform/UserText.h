#pragma once

#include <functional>
#include <string>

namespace lurkwell {

/// What parts without the toolkit say to the user, in the user's language: the text for the id
/// where texts have been set and have one, else the English one. Main thread.
std::string UserText(const char* id, const char* english);

/// Takes where texts come from from now on; `textFor` gives an empty one for an id that it does not
/// know.
void SetUserTexts(std::function<std::string(const char* id)> textFor);

}  // namespace lurkwell
