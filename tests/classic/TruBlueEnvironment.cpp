// A Classic environment whose guests are told to it on standard input, a line each:
//
//   burn PERCENT       uses so much of one CPU from now on
//
//   guest HIGH LOW TYPE SIGNATURE SIZE FREE RATE NAME
//                      RATE: ticks a second; the name ends the line
//
//   end HIGH LOW
//
//   refuse COUNT       answers so many questions for its guests with an error
//
//   flood COUNT EACH   tells the nub, when it asks, of so many guests that are not listed, in so
//                      large pieces, each time others
//
// It answers each with "ok", and ends with its input.
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusServiceWatcher>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cstring>
#include <ctime>
#include <iostream>
#include <sstream>

#include "platform/desktop/ClassicNames.h"
#include "platform/desktop/DBusEventBus.h"
#include "preferences/MacRoman.h"

struct ListedApplication {
  quint32 high = 0;
  quint32 low = 0;
  QString name;
  QString type;
  quint32 mode = 0;
  QString signature;
};
Q_DECLARE_METATYPE(ListedApplication)

QDBusArgument& operator<<(QDBusArgument& to, const ListedApplication& application) {
  to.beginStructure();
  to << application.high << application.low << application.name << application.type
     << application.mode << application.signature;
  to.endStructure();
  return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, ListedApplication& application) {
  from.beginStructure();
  from >> application.high >> application.low >> application.name >> application.type >>
      application.mode >> application.signature;
  from.endStructure();
  return from;
}

namespace lurkwell {
namespace {

struct Guest {
  ListedApplication listed;
  quint32 size = 0;
  quint32 freeMemory = 0;
  quint32 ticksPerSecond = 0;
  QElapsedTimer since;
  /// Of a guest that is a program of its own; else "".
  QString connection;

  ProcessSerialNumber Psn() const { return {listed.high, listed.low}; }
  QByteArray Record() const;
};

QByteArray Guest::Record() const {
  QByteArray record(396, '\0');
  const auto put = [&](qsizetype offset, const void* bytes, qsizetype count) {
    std::copy_n(static_cast<const char*>(bytes), count, record.data() + offset);
  };
  const auto number = [&](qsizetype offset, quint32 value) { put(offset, &value, sizeof value); };
  char name[256] = {};
  MacRomanFromUtf8(listed.name.toStdString(), name, sizeof name);
  number(0, 60);
  number(8, listed.high);
  number(12, listed.low);
  put(16, listed.type.toLatin1().constData(), 4);
  put(20, listed.signature.toLatin1().constData(), 4);
  number(24, listed.mode);
  number(28, 0x1000);
  number(32, size);
  number(36, freeMemory);
  number(52, static_cast<quint32>(since.elapsed() * ticksPerSecond / 1000));
  record[68] = static_cast<char>(std::strlen(name));
  put(69, name, static_cast<qsizetype>(std::strlen(name)));
  return record;
}

QByteArray FloodRecord(quint32 number) {
  Guest guest;
  guest.listed = {
      77, number, QStringLiteral("Flood"), QStringLiteral("APPL"), 0, QStringLiteral("FLOD")};
  guest.since.start();
  return guest.Record();
}

class Environment final : public QDBusVirtualObject {
 public:
  explicit Environment(DBusEventBus& events);

  void Obey(const std::string& line);

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

 private:
  void Add(Guest guest);
  void Remove(const std::function<bool(const Guest&)>& which);
  void Quit(const Event& event);
  void Burn() const;

  DBusEventBus& mEvents;
  QDBusConnection mBus;
  QDBusServiceWatcher mPrograms;
  QTimer mBurning;
  int mRefusals = 0;
  quint32 mFlood = 0;
  quint32 mFloodEach = 0;
  int mPercent = 0;
  quint32 mNextNumber = 1;
  QList<Guest> mGuests;
};

constexpr int kBurnPeriod = 20;

Environment::Environment(DBusEventBus& events) : mEvents(events), mBus(events.Connection()) {
  mPrograms.setConnection(mBus);
  mPrograms.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
  connect(&mPrograms, &QDBusServiceWatcher::serviceUnregistered, this, [this](const QString& name) {
    Remove([&](const Guest& guest) { return guest.connection == name; });
  });
  connect(&mBurning, &QTimer::timeout, this, [this] { Burn(); });
  mEvents.InstallEventHandler({'a', 'e', 'v', 't'}, {'q', 'u', 'i', 't'},
                              [this](const Event& event) { Quit(event); });
  qDBusRegisterMetaType<ListedApplication>();
  qDBusRegisterMetaType<QList<ListedApplication>>();
  mBus.registerVirtualObject(classic::kEnvironmentPath, this);
}

void Environment::Obey(const std::string& line) {
  std::istringstream words(line);
  std::string verb;
  words >> verb;
  if (verb == "burn") {
    words >> mPercent;
    mBurning.start(kBurnPeriod);
  } else if (verb == "guest") {
    Guest guest;
    std::string type;
    std::string signature;
    std::string name;
    words >> guest.listed.high >> guest.listed.low >> type >> signature >> guest.size >>
        guest.freeMemory >> guest.ticksPerSecond >> std::ws;
    std::getline(words, name);
    guest.listed.name = QString::fromStdString(name);
    guest.listed.type = QString::fromStdString(type);
    guest.listed.signature = QString::fromStdString(signature);
    Add(std::move(guest));
  } else if (verb == "refuse") {
    words >> mRefusals;
  } else if (verb == "flood") {
    words >> mFlood >> mFloodEach;
  } else if (verb == "end") {
    ProcessSerialNumber psn;
    words >> psn.high >> psn.low;
    Remove([&](const Guest& guest) { return guest.Psn() == psn; });
  }
  std::cout << "ok" << std::endl;
}

void Environment::Add(Guest guest) {
  guest.since.start();
  mGuests << std::move(guest);
  mBus.send(QDBusMessage::createSignal(classic::kEnvironmentPath, classic::kEnvironmentInterface,
                                       QStringLiteral("ApplicationsChanged")));
}

void Environment::Remove(const std::function<bool(const Guest&)>& which) {
  mGuests.removeIf(which);
  mBus.send(QDBusMessage::createSignal(classic::kEnvironmentPath, classic::kEnvironmentInterface,
                                       QStringLiteral("ApplicationsChanged")));
}

/// A guest that is a program of its own hears of it; the others end.
void Environment::Quit(const Event& event) {
  const auto* psn = event.Find<ProcessSerialNumber>({'a', 'd', 'd', 'r'});
  if (psn == nullptr) return;
  for (const auto& guest : mGuests) {
    if (guest.Psn() != *psn || guest.connection.isEmpty()) continue;
    mEvents.Send(guest.connection.toStdString(), event);
    return;
  }
  Remove([&](const Guest& guest) { return guest.Psn() == *psn; });
}

bool Environment::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
  if (message.member() == QLatin1String("Applications") && mRefusals > 0) {
    --mRefusals;
    return mBus.send(message.createErrorReply(QDBusError::Failed, QStringLiteral("refused")));
  }
  if (message.member() == QLatin1String("Applications")) {
    QList<ListedApplication> list;
    for (const auto& guest : mGuests) list << guest.listed;
    return mBus.send(message.createReply(QVariant::fromValue(list)));
  }
  if (message.member() == QLatin1String("Records")) {
    QByteArray records;
    for (const auto& guest : mGuests) records += guest.Record();
    for (quint32 i = std::min(mFlood, mFloodEach); i > 0; --i) records += FloodRecord(mFlood--);
    return mBus.send(message.createReply(records));
  }
  if (message.member() != QLatin1String("Register") || message.arguments().size() != 2)
    return false;
  Guest guest;
  guest.listed = {9,
                  mNextNumber++,
                  message.arguments()[0].toString(),
                  QStringLiteral("APPL"),
                  0,
                  message.arguments()[1].toString()};
  guest.connection = message.service();
  mPrograms.addWatchedService(guest.connection);
  const bool sent =
      mBus.send(message.createReply({QVariant(guest.listed.high), QVariant(guest.listed.low)}));
  Add(std::move(guest));
  return sent;
}

void Environment::Burn() const {
  const auto used = [] {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1000 + static_cast<double>(time.tv_nsec) / 1e6;
  };
  const double until = used() + kBurnPeriod * mPercent / 100.0;
  while (used() < until) {
  }
}

}  // namespace
}  // namespace lurkwell

int main(int argc, char** argv) {
  using namespace lurkwell;
  const QCoreApplication application(argc, argv);
  DBusEventBus events({qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS").toStdString(),
                       QStringLiteral("environment"), QString()});
  Environment environment(events);
  if (!QDBusConnection(events.Connection()).registerService(classic::kEnvironmentService)) return 1;
  QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, [&] {
    std::string line;
    char c = 0;
    while (::read(STDIN_FILENO, &c, 1) == 1 && c != '\n') line += c;
    if (line.empty()) return QCoreApplication::quit();
    environment.Obey(line);
  });
  std::cout << "ready" << std::endl;
  return QCoreApplication::exec();
}
