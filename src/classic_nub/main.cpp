// ClassicProcessInfoNub: reports the applications of the Classic environment.
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "classic_nub/Nub.h"
#include "platform/desktop/ClassicNames.h"

int main(int argc, char** argv) {
  using namespace lurkwell;
  // Programs that start this one give it no environment.
  const bool isTold = argc == 3 && std::string_view(argv[1]) == "--bus";
  if (!isTold && argc != 1) {
    std::fputs("usage: ClassicProcessInfoNub [--bus ADDRESS]\n", stderr);
    return 64;
  }
  const char* usual = std::getenv("DBUS_SESSION_BUS_ADDRESS");
  const std::string address = isTold ? argv[2] : usual != nullptr ? usual : "";
  const QCoreApplication application(argc, argv);
  DBusEventBus events({address, QStringLiteral("nub"), classic::kNubService});
  // One at a time: the one with the name serves.
  if (!events.HasItsName()) return 1;
  Nub nub(events, [] { QCoreApplication::quit(); });
  return QCoreApplication::exec();
}
