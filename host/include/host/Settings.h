#pragma once

#include <array>
#include <optional>
#include <string>

/// System settings shared with the engine.
struct CmnSys {
  unsigned optionFlags = 0; ///< bit 0: digit grouping
  int minimumIntegerDigits = 1;

  bool digitGrouping() const { return (optionFlags & 1U) != 0; }

  static CmnSys& shared();
};

/// Locale settings shared with the engine; absent until the host program sets
/// them.
struct CmnLoc {
  std::string groupingSeparator; ///< one character, UTF-8

  static std::optional<CmnLoc>& shared();
};

/// One of the five custom currencies, 0 to 4.
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

class currencyFormat {
public:
  /// The record of currency `number`, 0 to 4; another number is reported, and the
  /// record of no currency given or nothing set.
  static const customCurrency& GetCCX(int number);
  static void SetCCX(int number, customCurrency currency);
};

extern "C" {
/// Bit 0: a bootstrap run is in progress.
int qbootstrapping_();
}

namespace host {
void setBootstrapping(bool on);
}
