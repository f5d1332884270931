#include <sstream>

#include <gtest/gtest.h>
#include <xercesc/dom/DOMText.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <host/ChartBase.h>
#include <host/ChartError.h>
#include <host/ChartPrinter.h>
#include <host/Text.h>

namespace {

// The last one is longer than a block of output.
const std::string texts[] = {"  leading", "trailing  ", "\n",        "a\nb\t\tc",
                             "a\r\nb\rc", "<&>\"']]>",  "é 日本 😀", std::string(100'000, 'x')};

class ChartPrinterTest : public testing::Test {
protected:
  ChartPrinterTest() : document(ChartBase::createDocument(ChartBase::_utf8)) {}
  ~ChartPrinterTest() override { ChartBase::releaseDocument(document); }

  xercesc::DOMElement& add(const XMLCh* name) {
    auto* element = document->createElement(name);
    document->getDocumentElement()->appendChild(element);
    return *element;
  }

  std::string print(bool indented) const {
    ChartPrinter printer;
    printer.setPrintWhiteSpace(indented);
    std::ostringstream out;
    printer.Print(*document, out);
    return out.str();
  }

  std::string failureOf(std::ostream& out) const {
    try {
      ChartPrinter().Print(*document, out);
    } catch (const ChartException& exception) {
      return exception.what();
    }
    return "printed";
  }

  xercesc::DOMDocument* document;
};

TEST_F(ChartPrinterTest, PrintsUtf8AndIndentsOnRequest) {
  auto& axis = add(u"axis");
  auto* label = document->createElement(u"label");
  label->appendChild(document->createTextNode(u"Größe"));
  axis.appendChild(label);
  EXPECT_EQ(print(false), "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>"
                          "<graph><axis><label>Größe</label></axis></graph>");
  EXPECT_EQ(print(true), "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>\n"
                         "<graph>\n\n  <axis>\n    <label>Größe</label>\n  </axis>\n\n</graph>\n");
}

TEST_F(ChartPrinterTest, TextsAndAttributesSurviveTheRoundTrip) {
  for (const std::string& text : texts) {
    auto& label = add(u"label");
    label.setAttribute(u"name", host::utf16(text).c_str());
    label.appendChild(document->createTextNode(host::utf16(text).c_str()));
  }
  for (const bool indented : {false, true}) {
    const std::string xml = print(indented);
    xercesc::XercesDOMParser parser;
    parser.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(xml.data()),
                                            xml.size(), "printed"));
    auto* label = parser.getDocument()->getDocumentElement()->getFirstElementChild();
    for (const std::string& text : texts) {
      ASSERT_NE(label, nullptr);
      EXPECT_EQ(host::utf8(label->getAttribute(u"name")), text);
      EXPECT_EQ(host::utf8(label->getTextContent()), text);
      label = label->getNextElementSibling();
    }
  }
}

TEST_F(ChartPrinterTest, RefusesCharactersThatXmlForbids) {
  add(u"label").setAttribute(u"name", u"bell\x07");
  std::ostringstream out;
  EXPECT_EQ(failureOf(out), "can't print the chart document: invalid or illegal XML character");
}

TEST_F(ChartPrinterTest, RefusesAStreamThatFails) {
  struct Full final : std::streambuf {
  } full;
  std::ostream out(&full);
  EXPECT_EQ(failureOf(out), "can't print the chart document: the output stream failed");
}

} // namespace
