#include "fleet_window/RecentFleets.h"

#include "preferences/Settings.h"
#include "windows/NameList.h"

namespace lurkwell {
namespace {

constexpr int kMostFleets = 10;
constexpr int kRoomForFleets = 4096;

}  // namespace

QStringList RecentFleets() {
  char text[kRoomForFleets] = "";
  ReadText("FLEET_RECENT_ADDRESSES", text, sizeof text);
  return DecodedNames(text);
}

void RememberFleet(const QUrl& address) {
  // Whatever else it has, no name and no password.
  const auto text = address.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery);
  auto addresses = RecentFleets();
  if (!addresses.isEmpty() && addresses.constFirst() == text) return;
  addresses.removeAll(text);
  addresses.prepend(text);
  while (addresses.size() > kMostFleets) addresses.removeLast();
  StoreText("FLEET_RECENT_ADDRESSES", EncodedNames(addresses, kRoomForFleets).constData());
}

}  // namespace lurkwell
