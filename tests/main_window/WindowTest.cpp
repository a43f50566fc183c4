// The window as a whole, and the order of windows.
#include <QFile>
#include <QLabel>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QTextBrowser>
#include <QToolButton>

#include "channel/DaemonChannel.h"
#include "main_window/HelpWindow.h"
#include "main_window/HintBar.h"
#include "main_window/MainWindowTest.h"
#include "resources/Resources.h"
#include "windows/HelpKey.h"
#include "windows/WindowFrame.h"

namespace lurkwell {
namespace {

using WindowTest = MainWindowTest;

TEST_F(WindowTest, ComesBackWhereItWasIfThatCanBeSeen) {
  Open();
  auto& header = *window->table().horizontalHeader();
  EXPECT_LE(header.length(), window->table().viewport()->width());
  EXPECT_GT(header.length() + 40, window->table().viewport()->width()) << "the first start's";
  const auto fills = [&] {
    QApplication::processEvents();
    const int rest = window->table().viewport()->width() - header.length();
    return rest >= 0 && rest < 40;
  };
  for (const int width : {1400, 1000, 500, 1200}) {
    window->resize(width, 500);
    EXPECT_EQ(fills(), width != 500) << width << ": a name needs some room";
  }
  header.resizeSection(ColumnOf("meta_name"), 120);
  window->setGeometry(100, 80, 500, 400);
  QApplication::processEvents();
  const auto place = window->pos();
  window->SaveFrame();
  window.reset();
  Open();
  EXPECT_EQ(window->size(), QSize(500, 400));
  EXPECT_EQ(window->pos(), place);
  EXPECT_EQ(window->table().columnWidth(ColumnOf("meta_name")), 120);
  const QRect free = window->screen()->availableGeometry();
  for (const char* frame :
       {"90000 90000 500 400", "0 0 9 9", "rubbish", "0 0 -5 2000000000", "700 20 500 400",
        "-300 700 500 400", "10 10 4000 3000", "300 300 4000 300"}) {
    SetPrefString("MAIN_WINDOW_FRAME", frame);
    window.reset();
    Open();
    EXPECT_TRUE(free.contains(QRect(window->pos(), window->size()))) << frame;
    EXPECT_GT(window->width(), 99) << frame;
  }
}

TEST_F(WindowTest, WhereNobodyTellsPlacesOnlyItsSizeIsRemembered) {
  const auto frame = [] {
    char text[64] = "";
    ReadText("MAIN_WINDOW_FRAME", text, sizeof text);
    return std::string(text);
  };
  machine.screen.abilities.places = false;
  Open();
  const auto place = window->pos();
  window->resize(500, 400);
  window->SaveFrame();
  EXPECT_EQ(frame(), "- - 500 400");
  // The place of another session is kept for the next one of its kind.
  StoreText("MAIN_WINDOW_FRAME", "100 80 520 420 maximised");
  window.reset();
  Open();
  EXPECT_EQ(window->normalGeometry().size(), QSize(520, 420));
  window->showNormal();
  EXPECT_EQ(window->pos(), place) << "where the desktop puts it";
  window->resize(540, 440);
  window->SaveFrame();
  EXPECT_EQ(frame(), "100 80 540 440");
  machine.screen.abilities.places = true;
  window.reset();
  Open();
  EXPECT_EQ(window->pos(), QPoint(100, 80));
}

TEST_F(WindowTest, SaysHowManyThereAreAndThatTheHelperIsGone) {
  machine.processTable.Birth(300, "p");
  Open();
  Select({300});
  QString said;
  for (const auto* label : window->findChildren<QLabel*>()) said += label->text() + "\n";
  EXPECT_TRUE(said.contains(QLatin1String("3 processes, 3 shown, 1 selected")))
      << said.toStdString();
  EXPECT_FALSE(said.contains(QLatin1String("rights"))) << "all is well: nothing is said";
  const auto aboutHelper = [&]() -> QLabel* {
    Turn(2000);
    for (auto* label : window->findChildren<QLabel*>())
      if (label->text().contains(QLatin1String("\"rights\""))) return label;
    return nullptr;
  };
  helper.reset();
  // This machine has no place for a helper with rights.
  LaunchHelperDaemon();
  // Before the machine goes.
  const auto end = qScopeGuard([] { QuitHelperDaemon(); });
  window->resize(1600, 600);
  auto* label = aboutHelper();
  ASSERT_NE(label, nullptr);
  EXPECT_TRUE(label->text().startsWith(QLatin1String("Acts on your own processes only")));
  const auto whole = label->text();
  window->resize(window->minimumSizeHint().expandedTo({640, 480}));
  EXPECT_TRUE(aboutHelper()->text().startsWith(QLatin1String("<a "))) << "the counts come first";
  EXPECT_TRUE(label->toolTip().startsWith(QLatin1String("Acts on your own processes only")));
  window->resize(1600, 600);
  Turn(2000);
  EXPECT_EQ(aboutHelper()->text(), whole);
  // One stop of the Tab key, at the link, whatever text is shown meanwhile.
  label->setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(label->hasSelectedText());
  window->resize(window->minimumSizeHint().expandedTo({640, 480}));
  EXPECT_TRUE(aboutHelper()->text().startsWith(QLatin1String("<a ")));
  EXPECT_TRUE(label->hasFocus() && label->hasSelectedText());
  QTest::keyClick(label, Qt::Key_Tab);
  EXPECT_FALSE(label->hasFocus());
  window->resize(1600, 600);
  Turn(2000);
  machine.log.Clear();
  Q_EMIT label->linkActivated(QStringLiteral("rights"));
  EXPECT_NE(machine.log.Take().find("The helper cannot be given rights: "), std::string::npos);
  machine.namedPipes.SetBehaviour(SimulatedNamedPipes::Behaviour::kDoesNotOpen);
  CloseDaemonChannel();
  gDaemonChannelWatcher->Lost();
  label = aboutHelper();
  ASSERT_NE(label, nullptr);
  EXPECT_TRUE(label->text().contains(QLatin1String("not running")));
}

TEST_F(WindowTest, HelpNeedsNoBrowser) {
  Open();
  const auto browsers = [this] { return window->findChildren<QTextBrowser*>(); };
  for (int time = 0; time < 2; ++time)
    ShowHelpWindow(QStringLiteral("<h1>Heading</h1>"), {}, *window);
  ASSERT_EQ(browsers().size(), 1) << "one window";
  EXPECT_EQ(browsers().first()->toPlainText(), QLatin1String("Heading"));
  browsers().first()->window()->close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return browsers().isEmpty(); }));
  Choose("menu_help_help");
  EXPECT_TRUE(browsers().isEmpty());
  EXPECT_TRUE(window->statusBar()->currentMessage().contains("Documentation.html"))
      << "this machine's bundle has no page";
}

TEST_F(WindowTest, HelpBeginsAtTheSectionOfItsWindow) {
  Open();
  QFile file(QStringLiteral(SOURCE_FOLDER "/resources/Documentation/Documentation.html"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const auto page = QString::fromUtf8(file.readAll());
  int last = 0;
  for (int n = 0; n < static_cast<int>(HelpSection::kCount); ++n) {
    const auto section = QString::fromLatin1(AnchorOf(static_cast<HelpSection>(n)));
    ASSERT_TRUE(page.contains(QStringLiteral("<h2 id=\"%1\">").arg(section))) << n;
    ShowHelpWindow(page, section, *window);
    auto* bar = window->findChild<QTextBrowser*>()->verticalScrollBar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->value() > last; })) << qPrintable(section);
    last = bar->value();
  }
  window->findChild<QTextBrowser*>()->window()->close();
  // A key in another window finds the main window, which has the page.
  ControlledWindow other;
  AddHelpKey(other, HelpSection::kMachine);
  other.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  QTest::keyClick(&other, Qt::Key_F1);
  EXPECT_TRUE(window->statusBar()->currentMessage().contains("Documentation.html"));
}

TEST_F(WindowTest, HintsGoAwayOneByOneAndForGood) {
  Open();
  const auto bar = [this] { return window->findChild<HintBar*>(); };
  const auto press = [&](int button) {
    window->ShowHint();
    ASSERT_TRUE(bar()->isVisible());
    bar()->findChildren<QToolButton*>().at(button)->click();
    EXPECT_TRUE(bar()->isHidden());
  };
  window->ShowHint();
  const auto first = bar()->findChild<QLabel*>()->text();
  EXPECT_EQ(first, LocalizedString("hint_details"));
  press(1);
  window->ShowHint();
  EXPECT_NE(bar()->findChild<QLabel*>()->text(), first);
  press(0);
  window->ShowHint();
  EXPECT_TRUE(bar()->isHidden());
}

TEST_F(WindowTest, TheHelpPageTellsTheKeysThatThereAre) {
  QFile file(QStringLiteral(SOURCE_FOLDER "/resources/Documentation/Documentation.html"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const auto page = QString::fromUtf8(file.readAll());
  const auto has = [](const QString& filled, const char* text) {
    return filled.contains(QString::fromUtf8(text));
  };
  auto filled = FillHelpPage(page);
  EXPECT_TRUE(has(
      filled,
      "<td><kbd>Ctrl</kbd>+<kbd>+</kbd></td><td>give the selected processes a high priority</td>"));
  EXPECT_TRUE(has(filled, "<p><kbd>F7</kbd>, pressed"));
  SetPrefInt("FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE", 100);
  filled = FillHelpPage(page);
  EXPECT_TRUE(has(filled, "<p><kbd>F12</kbd>, pressed"));
  EXPECT_TRUE(has(filled, "<td><kbd>F12</kbd></td><td>the animated view over"));
  EXPECT_FALSE(has(filled, "F7"));
}

TEST_F(WindowTest, OutOfSightItOnlyKeepsUpWithWhoIsThereATenthAsOften) {
  OpenWith({300});
  int turns = 0;
  QObject::connect(&controller(), &vqMainTableController::updated, [&turns] { ++turns; });
  const auto turnsIn = [&](int seconds) {
    turns = 0;
    Turn(seconds * 1000);
    return turns;
  };
  EXPECT_EQ(turnsIn(40), 20);
  window->showMinimized();
  QApplication::processEvents();
  const auto secondsUntilKnown = [&](int pid) {
    machine.processTable.Birth(pid, "late");
    int seconds = 0;
    for (; controller().rows().Find(pid) == nullptr && seconds < 100; ++seconds) turnsIn(1);
    return seconds;
  };
  secondsUntilKnown(301);
  machine.log.Clear();
  EXPECT_EQ(secondsUntilKnown(302), 20);
  SetPrefInt("MAIN_WINDOW_INTERVAL", 1000);
  ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType("*");
  secondsUntilKnown(303);
  EXPECT_EQ(secondsUntilKnown(304), 10);
  for (const auto& line : machine.log.Lines()) EXPECT_EQ(line, "ProcessTable.Read");
  machine.processTable.Death(303);
  turnsIn(10);
  EXPECT_EQ(controller().rows().Find(303), nullptr);
  window->showNormal();
  QApplication::processEvents();
  EXPECT_EQ(turnsIn(0), 1) << "at once";
  EXPECT_EQ(turnsIn(40), 40);
}

}  // namespace
}  // namespace lurkwell
