#include "platform/UserText.h"

#include <utility>

namespace lurkwell {
namespace {

std::function<std::string(const char*)> gTextFor;

}  // namespace

std::string UserText(const char* id, const char* english) {
  auto text = gTextFor ? gTextFor(id) : std::string();
  return text.empty() ? english : text;
}

void SetUserTexts(std::function<std::string(const char*)> textFor) {
  gTextFor = std::move(textFor);
}

}  // namespace lurkwell
