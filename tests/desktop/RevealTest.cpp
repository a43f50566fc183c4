#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>
#include <string>

#include "desktop/MadeUpProcesses.h"
#include "desktop/TestBus.h"
#include "platform/desktop/DesktopProcessManager.h"
#include "support/ChildProgram.h"
#include "support/EventLoop.h"

namespace lurkwell {
namespace {

/// Writes down what it is asked to show.
class FakeFileManager final : public QDBusVirtualObject {
 public:
  explicit FakeFileManager(const std::string& address)
      : mBus(QDBusConnection::connectToBus(QString::fromStdString(address), "fake")) {
    EXPECT_TRUE(mBus.registerVirtualObject("/org/freedesktop/FileManager1", this));
    EXPECT_TRUE(mBus.registerService("org.freedesktop.FileManager1"));
  }
  ~FakeFileManager() override { QDBusConnection::disconnectFromBus("fake"); }

  void Leave() { EXPECT_TRUE(mBus.unregisterService("org.freedesktop.FileManager1")); }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    EXPECT_EQ(message.interface(), "org.freedesktop.FileManager1");
    EXPECT_EQ(message.member(), "ShowItems");
    EXPECT_EQ(message.signature(), "ass");
    shown = message.arguments().value(0).toStringList();
    // A call that is still open when the bus ends fails then.
    return bus.send(message.createReply());
  }

  QStringList shown;

 private:
  QDBusConnection mBus;
};

TEST(Reveal, AsksTheFileManagerForTheEntryOrTheProgram) {
  TestBus bus;
  FakeFileManager fileManager(bus.Address());
  const MadeUpProcesses processes;
  processes.WriteEntry("known", "Name=Known\n");
  processes.Write(1, 1, kAppSlice + std::string("app-known-1.scope"));
  processes.Write(2, 2, kAppSlice + std::string("app-other-2.scope"), "other",
                  "/opt/a b/\xc3\xbc#? (deleted)");
  auto settings = processes.Settings();
  settings.sessionBusAddress = bus.Address();
  DesktopProcessManager manager(settings);
  const auto shows = [&](ProcessSerialNumber psn, const std::string& uri) {
    fileManager.shown.clear();
    EXPECT_TRUE(manager.Reveal(psn));
    return SoonTrue([&] { return fileManager.shown == QStringList(QString::fromStdString(uri)); });
  };
  EXPECT_TRUE(shows({1, 1}, "file://" + processes.EntryPath("known")));
  EXPECT_TRUE(shows({2, 2}, "file:///opt/a%20b/%C3%BC%23%3F"));
  EXPECT_FALSE(manager.Reveal({3, 3}));
  // The next has no file manager to ask.
  std::string failed;
  manager.WhenRevealFails([&failed](const std::string& file) { failed = file; });
  fileManager.Leave();
  EXPECT_TRUE(manager.Reveal({1, 1})) << "without waiting for the answer";
  EXPECT_TRUE(SoonTrue([&] { return failed == processes.EntryPath("known"); }));
  bus.End();
  EXPECT_TRUE(SoonTrue([&] { return !manager.Reveal({1, 1}); }));
}

/// Takes the place of what opens folders.
class FakeOpener {
 public:
  FakeOpener() { ::setenv("PATH", folder.path().toUtf8().constData(), 1); }
  ~FakeOpener() { ::setenv("PATH", mPath.c_str(), 1); }

  /// One that still runs keeps its own file, and what it tells is there as a whole.
  void Answer(int status) const {
    QFile::remove(Path("xdg-open"));
    QFile script(Path("xdg-open"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write(
        "#!/bin/sh\nprintf '%s' \"$1\" > \"${0%/*}/part\"; "
        "/bin/mv \"${0%/*}/part\" \"${0%/*}/opened\"; exit " +
        QByteArray::number(status) + "\n");
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  }
  std::string Opened() const {
    QFile file(Path("opened"));
    const bool isThere = file.open(QIODevice::ReadOnly);
    const auto opened = isThere ? file.readAll().toStdString() : std::string();
    file.remove();
    return opened;
  }
  QString Path(const char* name) const { return folder.filePath(QLatin1String(name)); }

  QTemporaryDir folder;

 private:
  std::string mPath = ::getenv("PATH");
};

TEST(Reveal, AFileIsShownOrElseItsFolderOrElseItIsSaid) {
  TestBus bus;
  FakeFileManager fileManager(bus.Address());
  const FakeOpener opener;
  DesktopSettings settings;
  settings.sessionBusAddress = bus.Address();
  DesktopProcessManager manager(settings);
  int failures = 0;
  const auto comesTo = [&](const auto& condition) {
    manager.ShowFile("/tmp/a b/log.tsv", [&failures] { ++failures; });
    return SoonTrue([&] { return condition(); });
  };
  EXPECT_TRUE(
      comesTo([&] { return fileManager.shown == QStringList("file:///tmp/a%20b/log.tsv"); }));
  fileManager.Leave();
  opener.Answer(0);
  EXPECT_TRUE(comesTo([&] { return opener.Opened() == "/tmp/a b"; }));
  bus.End();
  EXPECT_TRUE(comesTo([&] { return opener.Opened() == "/tmp/a b"; }));
  EXPECT_EQ(failures, 0);
  manager.ShowAddress("https://search.example/?q=a%26b", [&failures] { ++failures; });
  EXPECT_TRUE(SoonTrue([&] { return opener.Opened() == "https://search.example/?q=a%26b"; }));
  opener.Answer(3);
  EXPECT_TRUE(comesTo([&] { return failures == 1; })) << "it has found nothing that shows folders";
  QFile::remove(opener.Path("xdg-open"));
  EXPECT_TRUE(comesTo([&] { return failures == 2; })) << failures;
}

}  // namespace
}  // namespace lurkwell
