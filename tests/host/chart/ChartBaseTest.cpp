#include <gtest/gtest.h>
#include <xercesc/dom/DOMText.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <host/ChartBase.h>
#include <host/Text.h>
#include <host/ZephUni.h>

namespace {

class ChartBaseTest : public testing::Test {
protected:
  ChartBaseTest() : document(ChartBase::createDocument(ChartBase::_utf8)) {}
  ~ChartBaseTest() override { ChartBase::releaseDocument(document); }

  xercesc::DOMElement& make(const XMLCh* name, const XMLCh* id) {
    auto* element = document->createElement(name);
    ChartBase::AddID(*element, id);
    return *element;
  }

  xercesc::DOMDocument* document;
};

TEST(ChartBaseDocument, OutlivesThePlatformsOtherUsers) {
  xercesc::XMLPlatformUtils::Initialize();
  auto* first = ChartBase::createDocument(ChartBase::_utf8);
  auto* second = ChartBase::createDocument(ChartBase::_utf8);
  xercesc::XMLPlatformUtils::Terminate();
  ChartBase::releaseDocument(first);
  EXPECT_EQ(host::utf8(second->getDocumentElement()->getTagName()), "graph");
  EXPECT_EQ(host::utf8(second->getXmlEncoding()), "UTF-8");
  ChartBase::releaseDocument(second);
  ChartBase::releaseDocument(nullptr);
}

TEST_F(ChartBaseTest, FindsElementsByIdAlsoDetachedAndAfterASwap) {
  auto& one = make(ZephUni::_style, u"one");
  auto& two = make(ZephUni::_style, u"two");
  EXPECT_EQ(document->getElementById(u"one"), &one);
  ChartBase::AddID(one, u"two");
  ChartBase::AddID(two, u"one");
  EXPECT_EQ(document->getElementById(u"one"), &two);
  EXPECT_EQ(document->getElementById(u"two"), &one);
}

TEST_F(ChartBaseTest, FreesTheIdsOfWhatLeavesTheTree) {
  auto& parent = make(ZephUni::_element, u"parent");
  auto& child = make(ZephUni::_label, u"child");
  auto& grandchild = make(ZephUni::_label, u"grandchild");
  parent.appendChild(&child);
  parent.appendChild(document->createTextNode(u"text"));
  child.appendChild(&grandchild);
  ChartBase::removeAllChildren(parent);
  EXPECT_EQ(parent.getFirstChild(), nullptr);
  EXPECT_EQ(document->getElementById(u"child"), nullptr);
  EXPECT_EQ(document->getElementById(u"grandchild"), nullptr);
  EXPECT_EQ(document->getElementById(u"parent"), &parent);
  auto& successor = make(ZephUni::_label, u"child");
  EXPECT_EQ(document->getElementById(u"child"), &successor);
  ChartBase::releaseIDs(*document->createElement(ZephUni::_label)); // has none
}

TEST_F(ChartBaseTest, MergesAttributesButNotTheId) {
  auto& from = make(ZephUni::_point, u"from");
  auto& to = make(ZephUni::_point, u"to");
  EXPECT_EQ(ChartBase::AddAttribute(from, ZephUni::_type, u"new"), 0);
  ChartBase::AddAttribute(to, ZephUni::_type, u"old");
  ChartBase::AddAttribute(to, ZephUni::_name, u"kept");
  ChartBase::mergeAttributes(from, to);
  EXPECT_EQ(host::utf8(to.getAttribute(ZephUni::_type)), "new");
  EXPECT_EQ(host::utf8(to.getAttribute(ZephUni::_name)), "kept");
  EXPECT_EQ(document->getElementById(u"to"), &to);
  EXPECT_EQ(document->getElementById(u"from"), &from);
}

TEST_F(ChartBaseTest, FindsTheFirstChildOfAName) {
  auto& parent = make(ZephUni::_frame, u"parent");
  auto& axis = make(ZephUni::_axis, u"axis");
  axis.appendChild(&make(ZephUni::_label, u"too deep"));
  parent.appendChild(&axis);
  EXPECT_EQ(ChartBase::getChildByTagName(parent, ZephUni::_label), nullptr);
  auto* label = parent.appendChild(&make(ZephUni::_label, u"first"));
  parent.appendChild(&make(ZephUni::_label, u"second"));
  EXPECT_EQ(ChartBase::getChildByTagName(parent, ZephUni::_label), label);
}

TEST(ChartBaseNumbers, HaveTheFewestDigitsThatReadBack) {
  const std::pair<double, const char*> cases[] = {
      {2, "2"},           {0.1, "0.1"},      {-1.5, "-1.5"},
      {100000, "100000"}, {1e300, "1e+300"}, {0.1 + 0.2, "0.30000000000000004"},
      {1e-7, "1e-07"}};
  for (const auto& [value, text] : cases)
    EXPECT_EQ(ChartBase::asString(value), text);
  EXPECT_EQ(ChartBase::asString(-42), "-42");
}

} // namespace
