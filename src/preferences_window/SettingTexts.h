#pragma once

#include <QString>

#include "preferences/SettingTable.h"

namespace lurkwell {

/// What people call the setting, a few words. Main thread.
QString TitleOf(const Setting& setting);

/// What the setting is for, a sentence; empty without a text. Main thread.
QString MeaningOf(const Setting& setting);

}  // namespace lurkwell
