#pragma once

#include <chartxml/Export.h>

/// Display formats of computed values, from the packed format of the variable that
/// they are computed from.
class CHARTXML_API formatSpec {
public:
  /// Whether a type code is one of printed numbers.
  static bool is_print_numeric(int type);
  /// The format of the variable's mean: two more decimals, at most 16. A format of
  /// another kind comes back as it is.
  static long Mean(long format);
  /// The format of its standard deviation: three more decimals, at most 16, in a width
  /// of 40.
  static long StdDev(long format);
};
