#include <host/ChartPrinter.h>

#include <memory>
#include <source_location>
#include <string>

#include <fmt/format.h>
#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSOutput.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <host/ChartBase.h>
#include <host/ChartError.h>
#include <host/Text.h>

namespace {

[[noreturn]] void fail(std::string_view why,
                       std::source_location where = std::source_location::current()) {
  throw ChartException(fmt::format("can't print the chart document: {}", why), where.file_name(),
                       where.line());
}

// The serializer hands over a few bytes at a time; the stream gets them in
// blocks.
class StreamTarget final : public xercesc::XMLFormatTarget {
public:
  explicit StreamTarget(std::ostream& out) : out_(out) { block_.reserve(blockSize); }

  void writeChars(const XMLByte* bytes, XMLSize_t count, xercesc::XMLFormatter*) override {
    if (block_.size() + count > blockSize) writeBlock();
    block_.append(reinterpret_cast<const char*>(bytes), count);
  }

  void finish() {
    writeBlock();
    out_.flush();
  }

private:
  static constexpr std::size_t blockSize = 1U << 16;

  void writeBlock() {
    out_.write(block_.data(), static_cast<std::streamsize>(block_.size()));
    block_.clear();
  }

  std::ostream& out_;
  std::string block_;
};

struct Release {
  template <class Node> void operator()(Node* node) const { node->release(); }
};

void serialize(const xercesc::DOMDocument& document, bool indented, StreamTarget& target) {
  auto* factory = xercesc::DOMImplementation::getImplementation();
  const std::unique_ptr<xercesc::DOMLSSerializer, Release> serializer(
      factory->createLSSerializer());
  const std::unique_ptr<xercesc::DOMLSOutput, Release> output(factory->createLSOutput());
  output->setByteStream(&target);
  output->setEncoding(ChartBase::_utf8);
  serializer->getDomConfig()->setParameter(xercesc::XMLUni::fgDOMWRTFormatPrettyPrint, indented);
  if (!serializer->write(&document, output.get())) fail("the serializer gave up");
}

} // namespace

void ChartPrinter::Print(const xercesc::DOMDocument& document, std::ostream& out) const {
  StreamTarget target(out);
  try {
    serialize(document, printWhiteSpace_, target);
    target.finish();
  } catch (const xercesc::DOMException& exception) {
    fail(host::utf8(exception.getMessage()));
  } catch (const xercesc::XMLException& exception) {
    fail(host::utf8(exception.getMessage()));
  } catch (const xercesc::OutOfMemoryException&) {
    fail("out of memory");
  } catch (const std::ios_base::failure& failure) {
    fail(failure.what());
  }
  if (!out) fail("the output stream failed");
}
