#pragma once

/// The roles that a variable can play in a chart.
class Role {
public:
  static constexpr int first = 1;
  static constexpr int last = 7;

  /// The role's name: 1 "x", 2 "y", 3 "z", 4 "r", 5 "theta", 6 "phi",
  /// 7 "position"; any other number has the empty name, silently.
  static const char* getString(int role);
};
