#include "../support/BuilderTest.h"

#include <limits>

#include <rapidcheck.h>
#include <xercesc/dom/DOM.hpp>

#include <chartxml/Role.h>
#include <host/Text.h>

using testing::HasSubstr;
using testing::IsEmpty;
using xercesc::DOMElement;

class Dimensions : public BuilderTest {
protected:
  int handle = registry().CreateChart();
  Chart& c = chart(handle);
  int frame = c.AddFrame(0, -1);

  /// What a call made, or found, and what a walk finds before it.
  struct Answer {
    int made = -1;
    int given = -1;
    int walked = -1;
  };

  Answer perform(int which, int parent, int role) {
    switch (which) {
    case 0:
      return {.made = c.AddFrame(parent, -1)};
    case 1:
      return {.made = c.AddNest(parent)};
    case 2:
      c.AddFacetVariable(parent, role, frame);
      return {};
    case 3: {
      const int walked = firstBelow(parent, u"facetLabeling");
      return {.given = c.AddFacetLabeling(parent), .walked = walked};
    }
    case 4: {
      const int walked = firstBelow(parent, u"tableFacet");
      return {.given = c.AddTableFacet(parent), .walked = walked};
    }
    default: {
      const int walked = firstChildInRole(parent, role);
      return {.given = c.AddDimension(parent, role, -1), .walked = walked};
    }
    }
  }

  int firstBelow(int root, const XMLCh* name, int role = 0) {
    const auto* found = c.getElement(root)->getElementsByTagName(name);
    for (XMLSize_t i = 0; i < found->getLength(); ++i) {
      const auto* element = static_cast<const DOMElement*>(found->item(i));
      if (role == 0 || roleOf(*element) == Role::getString(role)) return c.getHandle(element);
    }
    return -1;
  }
  int firstChildInRole(int parent, int role) {
    for (auto* child = c.getElement(parent)->getFirstElementChild(); child;
         child = child->getNextElementSibling()) {
      if (roleOf(*child) == Role::getString(role)) return c.getHandle(child);
    }
    return -1;
  }

private:
  static std::string roleOf(const DOMElement& element) {
    return host::utf8(element.getAttribute(u"role"));
  }
};

// What is known about subtrees must answer as a walk through them would.
TEST_F(Dimensions, AreFoundWhereverTheyStand) {
  EXPECT_TRUE(rc::check([&](const std::vector<std::uint16_t>& calls) {
    std::vector<int> nodes{c.AddFrame(0, -1)};
    for (const std::uint16_t call : calls) {
      const int parent = nodes[(call >> 8) % nodes.size()];
      const int role = 1 + (call >> 3) % 2;
      const Answer answer = perform(call % 8, parent, role);
      if (answer.walked != -1) RC_ASSERT(answer.given == answer.walked);
      if (answer.made != -1) nodes.push_back(answer.made);
      for (const int any : {1, 2, 3})
        RC_ASSERT(c.GetDimension(parent, any) == firstBelow(parent, u"dimension", any));
    }
  }));
}

TEST_F(Dimensions, StandBackForOtherChildrenInTheirRole) {
  followsGrammar = false; // a frame gets the attributes of a dimension
  const int variable = c.AddFacetVariable(frame, 1, frame);
  EXPECT_EQ(c.AddDimension(frame, 1, -1), variable);
  EXPECT_EQ(c.GetDimension(frame, 1), -1) << "it is no dimension";
  const int y = c.AddDimension(frame, 2, -1);
  const int outer = c.AddFrame(0, -1);
  const int inner = c.AddFrame(outer, -1);
  const int z = c.AddDimension(inner, 3, -1);
  c.CopyAttributes(y, inner);
  EXPECT_EQ(c.AddDimension(outer, 2, -1), inner) << "its role is a copy";
  c.CopyAttributes(y, z);
  EXPECT_EQ(c.GetDimension(outer, 2), z);
  EXPECT_EQ(c.GetDimension(outer, 3), -1);
}

TEST_F(Dimensions, AreFoundWhereCallersPutThem) {
  followsGrammar = false; // nodes in any place
  DOMElement* made = nullptr;
  const int z = c.AddEmptyElement(*c.getElement(frame), u"dimension", made);
  made->setAttribute(u"role", u"z");
  EXPECT_EQ(c.GetDimension(frame, 3), z);
  EXPECT_EQ(c.AddDimension(frame, 3, -1), z);
  const int labeling = c.AddEmptyElement(*c.getElement(frame), u"facetLabeling", made);
  EXPECT_EQ(c.AddFacetLabeling(frame), labeling);

  for (int i = 0; i < 20; ++i)
    c.AddNest(frame);
  const int inner = c.AddFrame(frame, -1);
  const int y = c.AddDimension(inner, 2, -1);
  const int outer = c.AddFrame(0, -1);
  const XMLCh* const before[] = {u"frame"};
  EXPECT_TRUE(c.insertBeforeSiblings(*c.getElement(frame), *c.getElement(c.AddSource()), before));
  EXPECT_TRUE(c.insertBeforeSiblings(*c.getElement(outer), *c.getElement(inner), before));
  EXPECT_EQ(c.GetDimension(outer, 2), y);
  EXPECT_EQ(c.GetDimension(frame, 2), -1);
  EXPECT_TRUE(c.insertBeforeSiblings(*c.getElement(frame), *c.getElement(y), before));
  EXPECT_EQ(c.getElement(frame)->getLastElementChild(), c.getElement(y))
      << "the frame that it would go before has left";
}

TEST_F(Dimensions, WriteWhatIsSet) {
  const int domain = c.AddDomain(true);
  const int x = c.AddDimension(frame, 1, domain);
  const int other = c.AddDomain(false);
  EXPECT_EQ(c.AddDimension(frame, 1, other), x) << "its domain stays";
  EXPECT_THAT(fragment(handle, x), HasSubstr(R"(domain="domain2")"));
  EXPECT_EQ(c.SetDimensionDomain(x, other), x);
  EXPECT_EQ(c.SetDimensionLowerMargin(x, text("1%")), x);
  EXPECT_EQ(c.SetDimensionUpperMargin(x, text("2%")), x);
  EXPECT_EQ(c.SetDimensionLowerMapping(x, text("3")), x);
  EXPECT_EQ(c.SetDimensionUpperMapping(x, text("4")), x);
  EXPECT_EQ(c.SetUnionDomain(x), x);
  EXPECT_EQ(c.SetFacetsDifferentScale(x), x);
  EXPECT_EQ(fragment(handle, x),
            R"(<dimension domain="domain3" facetsShareScale="false" lowerMapping="3" )"
            R"(lowerMargin="1%" role="x" unionDomain="true" upperMapping="4" upperMargin="2%"/>)");
  EXPECT_EQ(fragment(handle, c.AddDimension(c.AddFrame(0, text("my_pie")), 7, domain)),
            R"(<dimension domain="domain2" role="position"/>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Dimensions, HaveScalesByMethod) {
  const int two = text("2");
  const std::tuple<int, int, bool, const char*> cases[] = {
      {116, two, false, R"(<scale method="log"><parameter name="base" value="2"/>)"},
      {118, two, true,
       R"(<scale invert="true" method="exponent"><parameter name="exponent" value="2"/>)"},
      {115, two, false,
       R"(<scale method="power"><parameter name="base" value="2.718281828459045"/>)"},
      {124, -1, true,
       R"(<scale invert="true" method="log"><parameter name="base" value="2.718281828459045"/>)"}};
  for (const auto& [method, value, invert, expected] : cases) {
    const int dimension = c.AddDimension(c.AddFrame(0, -1), 2, -1);
    c.AddAxis(dimension, -1, false);
    const int scale = c.SetDimensionScale(dimension, method, value, invert);
    EXPECT_EQ(fragment(handle, scale),
              std::string(expected) + R"(<parameter name="safe" value="true"/></scale>)");
    EXPECT_EQ(c.AddFrame(0, -1), scale + 3) << "scale and parameters have handles";
    EXPECT_THAT(fragment(handle, dimension), HasSubstr("</scale><axis"));
  }
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Dimensions, KeepRatiosAndSquareTheFirstPanels) {
  const int x = c.AddDimension(frame, 1, -1);
  EXPECT_EQ(c.SetDimensionSameRatio(x, true), x) << "also without panels";
  const int second = c.AddFacetLabeling(c.AddFrame(0, -1));
  const int first = c.AddFacetLabeling(frame);
  EXPECT_EQ(c.SetDimensionSameRatio(c.AddDimension(frame, 2, -1), false), first + 1);
  EXPECT_EQ(fragment(handle, frame),
            R"(<frame id="frame1" style="default_style"><facetLabeling cellAspect="1"/>)"
            R"(<dimension facetsShareScale="true" role="x" sameRatio="trueCentered"/>)"
            R"(<dimension facetsShareScale="true" role="y" sameRatio="false"/></frame>)");
  EXPECT_EQ(fragment(handle, second), "<facetLabeling/>");
  c.SetFacetLabelingCellAspect(first, 2);
  EXPECT_EQ(c.SetDimensionSameRatio(second, true), second) << "another kind";
  EXPECT_EQ(fragment(handle, first), R"(<facetLabeling cellAspect="1"/>)");
  EXPECT_EQ(fragment(handle, second), "<facetLabeling/>");
}

TEST_F(Dimensions, SetTheBinsOfEveryHistogramAndTheExtentOfEveryDomain) {
  const double refused[] = {0, -1, std::numeric_limits<double>::quiet_NaN()};
  const int element = c.AddElement(frame, 20, -1);
  EXPECT_EQ(c.SetBinWidth(5), -1) << "there is none";
  EXPECT_EQ(c.SetXYDimensionSameScale(5), -1);
  const int histogram = c.AddStatistic(c.AddPosition(element), 44);
  c.AddStatistic(element, 131);
  const int domain = c.AddDomain(false);
  c.AddSort(domain);
  c.AddDomain(true);
  const std::string before = fragment(handle, 0);
  for (const double number : refused) {
    EXPECT_EQ(c.SetBinWidth(number), -1);
    EXPECT_EQ(c.SetXYDimensionSameScale(number), -1);
  }
  EXPECT_EQ(fragment(handle, 0), before);

  EXPECT_EQ(c.SetBinWidth(5), 1);
  EXPECT_EQ(c.SetBinWidth(0.1), 1);
  EXPECT_EQ(c.SetXYDimensionSameScale(2.5), 1);
  EXPECT_EQ(c.AddFrame(0, -1), domain + 3) << "none of it has a handle";
  EXPECT_EQ(fragment(handle, histogram),
            R"(<statistic method="histogram"><parameter name="facetsShareSpecification" )"
            R"(value="true"/><parameter name="bin-width" value="5"/>)"
            R"(<parameter name="bin-width" value="0.1"/></statistic>)");
  EXPECT_THAT(fragment(handle, element), HasSubstr(R"(<statistic method="mean"/>)"));
  EXPECT_EQ(fragment(handle, domain),
            R"(<domain categorical="false" id="domain3"><interval max="2.5" min="-2.5"/>)"
            R"(<sort/></domain>)");
  EXPECT_EQ(fragment(handle, domain + 2),
            R"(<domain categorical="true" id="domain4"><interval max="2.5" min="-2.5"/></domain>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}
