#include <host/ChartTranscoder.h>

#include <fmt/format.h>

#include <host/ErrorLog.h>

#include "Converter.h"

ChartTranscoder::ChartTranscoder(std::string_view codePage)
    : converter_(host::Converter::open(codePage)) {
  if (converter_) return;
  host::reportError(fmt::format("no code page \"{}\": UTF-8 is used", codePage));
  converter_ = host::Converter::open("UTF-8");
}

ChartTranscoder::~ChartTranscoder() = default;

std::u16string ChartTranscoder::transcode(std::string_view bytes) const {
  return converter_->decode(bytes);
}

std::string ChartTranscoder::transcodeTo(std::u16string_view text) const {
  return converter_->encode(text);
}
