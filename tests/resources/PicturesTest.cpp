// Pictures and forms as the windows show them.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QUiLoader>
#include <cstddef>
#include <memory>
#include <vector>

#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr QRgb kLight = 0xfff6f6f6;
constexpr QRgb kDark = 0xff232629;

QImage Drawn(const QIcon& icon, int size, qreal scale, QRgb ground) {
  const QPixmap pixmap = icon.pixmap(QSize(size, size), scale);
  EXPECT_EQ(pixmap.size(), QSize(size, size) * scale);
  QImage image(pixmap.size(), QImage::Format_RGB32);
  image.fill(ground);
  QPainter painter(&image);
  painter.drawPixmap(image.rect(), pixmap);
  return image;
}

/// The share of pixels that stand out from the ground clearly.
double Visible(const QImage& image, QRgb ground) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      count += std::abs(qRed(pixel) - qRed(ground)) + std::abs(qGreen(pixel) - qGreen(ground)) +
                   std::abs(qBlue(pixel) - qBlue(ground)) >
               120;
    }
  }
  return static_cast<double>(count) / (image.width() * image.height());
}

TEST(PicturesTest, EachIsSeenOnLightAndDarkAndDrawnAnewForEachScale) {
  QStringList names = QDir(":/images").entryList({"*.svg"});
  // A ground for others to be seen on; it is not to stand out.
  EXPECT_TRUE(names.removeOne("qvbackground.svg"));
  ASSERT_GT(names.size(), 20);
  for (const QString& file : names) {
    SCOPED_TRACE(file.toStdString());
    const QIcon icon = NamedImage(file.chopped(4).toUtf8());
    ASSERT_FALSE(icon.isNull());
    for (const QRgb ground : {kLight, kDark}) {
      const QImage once = Drawn(icon, 16, 1, ground);
      const QImage twice = Drawn(icon, 16, 2, ground);
      EXPECT_GT(Visible(once, ground), 0.10);
      EXPECT_GT(Visible(twice, ground), 0.10);
      EXPECT_NE(twice, once.scaled(twice.size()).convertToFormat(twice.format()));
    }
  }
}

TEST(PicturesTest, WhatTheWindowsShowByNameIsThere) {
  const QString names =
      "lurkwell process_halted process_niced_high process_niced_low headercpu "
      "headermemory vm_green vm_yellow vm_red1 vm_red2 cpu_hist logging bring_to_front kill "
      "hide_process reveal_in_finder high_priority medium_priority low_priority processhalt "
      "processcont show_preferences customise replay_back replay_play replay_pause replay_forth "
      "replay_peak";
  for (const QString& name : names.split(' '))
    EXPECT_FALSE(NamedImage(name.toUtf8()).isNull()) << qPrintable(name);
  EXPECT_TRUE(NamedImage("no_such_picture").isNull());
  // The two flash in turn: they must be told apart at a glance.
  const auto middle = [](const char* name) {
    return qGray(Drawn(NamedImage(name), 20, 1, kLight).pixel(10, 12));
  };
  EXPECT_GT(middle("vm_red1") - middle("vm_red2"), 50);
}

TEST(PicturesTest, TheLightsHaveShapesOfTheirOwnBesideTheirColours) {
  const auto outline = [](const char* name) {
    const auto image = Drawn(NamedImage(name), 40, 1, kLight);
    std::vector<bool> inside;
    for (int at = 0; at < 40 * 40; ++at) inside.push_back(image.pixel(at % 40, at / 40) != kLight);
    return inside;
  };
  const auto count = [&](const char* one, const char* other) {
    const auto first = outline(one);
    const auto second = outline(other);
    int different = 0;
    for (std::size_t at = 0; at < first.size(); ++at) different += first[at] != second[at];
    return different;
  };
  EXPECT_GT(count("vm_green", "vm_yellow"), 80);
  EXPECT_GT(count("vm_yellow", "vm_red1"), 80);
  EXPECT_GT(count("vm_green", "vm_red1"), 40);
}

TEST(FormsTest, TheAboutPanelLoadsWithItsLabels) {
  QFile file(":/forms/SplashScreen.ui");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  QUiLoader loader;
  const std::unique_ptr<QWidget> panel(loader.load(&file));
  ASSERT_NE(panel, nullptr) << qPrintable(loader.errorString());
  const auto label = [&panel](const char* name) { return panel->findChild<QLabel*>(name); };
  for (const char* name : {"iconLabel", "nameLabel", "versionLabel", "textLabel"})
    ASSERT_NE(label(name), nullptr) << name;
  EXPECT_EQ(panel->windowTitle(), LocalizedString("about_title"));
  EXPECT_EQ(label("nameLabel")->text(), "Lurkwell");
  EXPECT_TRUE(label("versionLabel")->text().contains("%1"));
  EXPECT_TRUE(label("textLabel")->text().contains("MIT"));
  for (const char* name : {"nameLabel", "versionLabel", "textLabel"})
    EXPECT_EQ(label(name)->textFormat(), Qt::PlainText) << name;

  label("iconLabel")->setPixmap(NamedImage("lurkwell").pixmap(128, 128));
  const QImage drawn = panel->grab().toImage();
  const QRgb ground = drawn.pixel(1, 1);
  const auto part = [&](const char* name) {
    const QLabel* shown = label(name);
    return drawn.copy(QRect(shown->mapTo(panel.get(), QPoint()), shown->size()));
  };
  EXPECT_GT(Visible(part("iconLabel"), ground), 0.5);
  for (const char* name : {"nameLabel", "versionLabel", "textLabel"})
    EXPECT_GT(Visible(part(name), ground), 0.005) << name;
}

}  // namespace
}  // namespace lurkwell
