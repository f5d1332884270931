#include <algorithm>

#include <host/Data.h>

namespace {

constexpr long partMask = 0xFF;

int part(int value) { return std::clamp(value, 0, static_cast<int>(partMask)); }
int part(long packed, int shift) { return static_cast<int>(packed >> shift & partMask); }

} // namespace

KORVA_Format::KORVA_Format(int type, int width, int decimals)
    : type_(part(type)), width_(part(width)), decimals_(part(decimals)) {}

KORVA_Format::KORVA_Format(long packed)
    : type_(part(packed, 16)), width_(part(packed, 8)), decimals_(part(packed, 0)) {}

KORVA_Format::operator long() const { return long{type_} << 16 | long{width_} << 8 | decimals_; }

void KORVA_Variable::GetFormatEx(int& type, int& width, int& decimals) const {
  const KORVA_Format format = GetFormat();
  type = format.TypeEx();
  width = format.Width();
  decimals = format.Decimals();
}
