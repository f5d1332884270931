#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>

#include <host/Export.h>

/// System settings shared with the engine; the host program may set them at any time.
struct KORVA_API CmnSys {
  unsigned optionFlags = 0;     ///< bit 0: digit grouping
  int minimumIntegerDigits = 1; ///< 0 to mostIntegerDigits, the nearer end beyond

  static constexpr int mostIntegerDigits = 40;

  bool digitGrouping() const { return (optionFlags & 1U) != 0; }
  void setDigitGrouping(bool on) { optionFlags = on ? optionFlags | 1U : optionFlags & ~1U; }

  static CmnSys& shared();
};

/// Locale settings shared with the engine: the signs of numbers in display texts.
/// Texts for machines never follow them.
struct KORVA_API CmnLoc {
  std::string decimalSeparator = "."; ///< one character, UTF-8
  std::string groupingSeparator;      ///< one character, UTF-8, or empty

  /// What set() gave, else the signs of the output language, changing with it; null
  /// after remove(). The pointer is good until the next call of either.
  static const CmnLoc* shared();

  /// Sets the program's own signs, whatever the output language. False, and no
  /// change, unless each is one printable character, no digit, and they differ; the
  /// grouping sign may be empty.
  static bool set(CmnLoc own);
  /// Makes the settings absent: numbers have a point, and a comma where digits are
  /// grouped.
  static void remove();
  /// Goes back to the signs of the output language.
  static void followLanguage();
};

/// One of the five custom currencies, 0 to 4; texts in the process code page.
class customCurrency {
public:
  customCurrency() = default;
  customCurrency(std::string prefix, std::string suffix, std::string negativePrefix,
                 std::string negativeSuffix)
      : prefix_(std::move(prefix)), suffix_(std::move(suffix)),
        negativePrefix_(std::move(negativePrefix)), negativeSuffix_(std::move(negativeSuffix)) {}

  const std::string& getPrefix() const { return prefix_; }
  const std::string& getSuffix() const { return suffix_; }
  const std::string& getNegativePrefix() const { return negativePrefix_; }
  const std::string& getNegativeSuffix() const { return negativeSuffix_; }

private:
  std::string prefix_;
  std::string suffix_;
  std::string negativePrefix_ = "-";
  std::string negativeSuffix_;
};

class KORVA_API currencyFormat {
public:
  /// The record of currency `number`, 0 to 4; another number is reported, and the
  /// record of no currency given.
  static const customCurrency& GetCCX(std::int64_t number);
  /// Sets the record; another number is reported, false, and nothing set.
  static bool SetCCX(std::int64_t number, customCurrency currency);
};

extern "C" {
/// Bit 0: a bootstrap run is in progress.
int qbootstrapping_();
}

namespace host {
KORVA_API void setBootstrapping(bool on);
}
