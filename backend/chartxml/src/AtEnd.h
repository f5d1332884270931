#pragma once

#include <utility>

/// Does something when its scope ends, also when control goes back to the caller by
/// an exception.
template <class Action> class AtEnd {
public:
  explicit AtEnd(Action action) : action_(std::move(action)) {}
  ~AtEnd() { action_(); }
  AtEnd(const AtEnd&) = delete;
  AtEnd& operator=(const AtEnd&) = delete;

private:
  Action action_;
};
