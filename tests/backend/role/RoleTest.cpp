#include <limits>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <chartxml/Role.h>

TEST(Role, IsNamedByItsNumberAndElseNotAtAll) {
  constexpr std::pair<int, const char*> cases[] = {
      {0, ""},
      {1, "x"},
      {2, "y"},
      {3, "z"},
      {4, "r"},
      {5, "theta"},
      {6, "phi"},
      {7, "position"},
      {8, ""},
      {-1, ""},
      {std::numeric_limits<int>::min(), ""},
      {std::numeric_limits<int>::max(), ""},
  };
  for (const auto& [role, name] : cases)
    EXPECT_EQ(std::string(Role::getString(role)), name) << role;
}
