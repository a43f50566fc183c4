#pragma once

namespace lurkwell {

/// What a property's value is, for showing and for sorting. Values travel as text in any case.
enum PropertyType : int {
  kPropertyTypeString = 0,   ///< text; also every unknown name
  kPropertyTypeInteger = 1,  ///< decimal integer
  kPropertyTypeReal = 2,     ///< decimal fraction, percentages
  kPropertyTypeHex = 3,      ///< hexadecimal address
  kPropertyTypeMemory = 4,   ///< size in bytes (ps columns: in units, as ps prints them)
  kPropertyTypeTime = 5,     ///< span of time, seconds.microseconds
  kPropertyTypeDate = 6,     ///< point in time, seconds.microseconds since the epoch
  kPropertyTypeClock = 7,    ///< span of time as ps prints it: [[days-]hours:]minutes:seconds
  kPropertyTypeShare = 8,    ///< fraction, per cent of something
  kPropertyTypeRate = 9,     ///< bytes per second
};

/// The four sources that report into the records; each has its own generations.
enum InformationKind : int {
  kInformationKindPID = 0,         ///< the kernel's table and the helper
  kInformationKindCarbonPSN = 1,   ///< the desktop's applications
  kInformationKindClassicPSN = 2,  ///< applications of the Classic environment
  kInformationKindPS = 3,          ///< columns of ps
};
inline constexpr int kInformationKindCount = 4;

}  // namespace lurkwell
