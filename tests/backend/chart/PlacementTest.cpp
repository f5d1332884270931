#include "../support/BuilderTest.h"

#include <functional>

#include <fmt/format.h>
#include <rapidcheck.h>
#include <xercesc/dom/DOM.hpp>

#include "../../../backend/chartxml/src/chart/ChildOrder.h"
#include <host/Text.h>

using xercesc::DOMElement;

class Placement : public BuilderTest {
protected:
  int handle = registry().CreateChart();
  Chart& made = chart(handle);

  DOMElement& loose(const std::string& name) {
    return *made.getChart()->createElement(host::utf16(name).c_str());
  }
  static std::string childNames(const DOMElement& parent) {
    std::string names;
    for (auto* child = parent.getFirstElementChild(); child;
         child = child->getNextElementSibling()) {
      names.append(host::utf8(child->getNodeName())).append(" ");
    }
    return names;
  }
};

// Each node goes before every name of its set, wherever that stands, and last among
// others.
TEST_F(Placement, PutsEachNodeBeforeTheNamesOfItsSet) {
  const int any = made.AddFrame(0, -1);
  const int v = made.mapElement(&loose("variable"));
  struct Case {
    const char* parent;
    const char* before;
    std::function<int(int)> add;
  };
  const Case cases[] = {
      {"frame", "style", [&](int p) { return made.AddFrame(p, -1); }},
      {"variable", "relabel", [&](int p) { return made.AddMeta(p); }},
      {"element", "styleBy color labeling split", [&](int p) { return made.AddPosition(p); }},
      {"position", "y z styleBy color labeling split", [&](int p) { return made.AddX(p, v); }},
      {"position", "z styleBy color labeling split", [&](int p) { return made.AddY(p, v); }},
      {"position", "styleBy color labeling split", [&](int p) { return made.AddZ(p, v); }},
      {"position", "phi z styleBy color labeling split", [&](int p) { return made.AddR(p, v); }},
      {"position", "r phi z styleBy color labeling split",
       [&](int p) { return made.AddTheta(p, v); }},
      {"position", "styleBy color labeling split", [&](int p) { return made.AddPhi(p, v); }},
      {"element", "color labeling split", [&](int p) { return made.AddStyleBy(p, v); }},
      {"element", "labeling split", [&](int p) { return made.AddColor(p, v); }},
      {"element", "split", [&](int p) { return made.AddLabeling(p, v); }},
      {"labeling", "numberFormat stringFormat dateTimeFormat",
       [&](int p) { return made.AddSize(p, v); }},
      {"frame",
       "label legend frame tableFacet facetLabeling coordinateFacet coordinateTransform dimension "
       "guide elementGroup element",
       [&](int p) {
         made.AddLocation(*made.getElement(p), u"", 0, 0, 0, 0);
         return p + 1;
       }},
      {"element", "x y z theta r phi", [&](int p) { return made.AddStatistic(p, 64); }},
      {"axis", "majorTicks minorTicks legendTarget transform",
       [&](int p) { return made.AddLabel(p, -1, -1); }},
      {"frame", "guide elementGroup element", [&](int p) { return made.AddDimension(p, 1, -1); }},
      {"dimension", "axis label", [&](int p) { return made.SetDimensionScale(p, 124, -1, true); }},
      {"domain", "domainReference sort numberFormat stringFormat dateTimeFormat relabel",
       [&](int p) { return made.AddInterval(p, 17, 17); }},
      {"domain", "numberFormat stringFormat dateTimeFormat relabel",
       [&](int p) { return made.AddSort(p); }},
      {"axis", "minorTicks legendTarget",
       [&](int p) { return made.AddMajorTicks(p, -1, false, -1, -1, false, -1); }},
      {"frame", "coordinateFacet coordinateTransform dimension guide elementGroup element",
       [&](int p) { return made.AddFacetLabeling(p); }},
      {"frame",
       "facetLabeling coordinateFacet coordinateTransform dimension guide elementGroup element",
       [&](int p) { return made.AddTableFacet(p); }},
      {"frame", "coordinateTransform dimension guide elementGroup element",
       [&](int p) { return made.AddCoordinateFacet(p); }},
      {"frame", "dimension guide element elementGroup",
       [&](int p) { return made.AddCoordinateTransform(p, 31); }},
      {"element", "position x y z theta r phi styleBy color labeling split",
       [&](int p) { return made.AddFacetStyle(p, 17, -1); }},
  };
  for (const Case& c : cases) {
    std::istringstream names(c.before);
    for (std::string name; names >> name;) {
      DOMElement& parent = loose(c.parent);
      for (const char* child : {"other", name.c_str(), "other"})
        parent.appendChild(&loose(child));
      const int added = c.add(made.mapElement(&parent));
      ASSERT_GE(added, 0) << c.parent;
      const std::string own = host::utf8(made.getElement(added)->getNodeName());
      EXPECT_EQ(childNames(parent), fmt::format("other {} {} other ", own, name));
    }
    DOMElement& parent = loose(c.parent);
    parent.appendChild(&loose("other"));
    const std::string own =
        host::utf8(made.getElement(c.add(made.mapElement(&parent)))->getNodeName());
    EXPECT_EQ(childNames(parent), "other " + own + " ");
  }
  EXPECT_GE(any, 0);
}

// Sources, variables, domains and frames stand in this order below the graph.
TEST_F(Placement, KeepsThePartsOfTheGraphInOrder) {
  Dictionary* dictionary = described({Column("v", "", 0, {0, 8, 0})}, {0});
  registry().SetDataSource(handle, nullptr, dictionary);
  made.AddFrame(0, -1);
  const int source = made.AddSource();
  made.AddVariable(source, 0, true);
  made.AddDomain(true);
  made.AddAggregate(source, -1, true, -1, -1, -1);
  made.AddDomain(true);
  made.AddSource();
  EXPECT_EQ(childNames(*made.getElement(0)),
            "source source variable variable domain domain frame ");
  EXPECT_EQ(host::utf8(made.getElement(source)->getAttribute(u"id")), "source0");
}

// Copies go before style cycles too, variables do not.
TEST_F(Placement, PutsVariablesAndTheirCopiesIntoTheGraph) {
  DOMElement& graph = *made.getElement(0);
  const int source = made.AddSource();
  bool copied = false;
  for (const char* name : {"domain", "frame", "style", "styleCycle"}) {
    DOMElement& later = loose(name);
    graph.appendChild(&later);
    const int v = made.AddAggregate(source, -1, true, -1, -1, -1);
    made.CopyVariable(v);
    made.getAestheticVariable(made.getElement(v), copied);
    EXPECT_EQ(childNames(graph), later.getNodeName() == std::u16string(u"styleCycle")
                                     ? "source variable variable styleCycle variable "
                                     : fmt::format("source variable variable variable {} ", name));
    for (int child = 0; child < 4; ++child)
      graph.removeChild(graph.getLastElementChild());
  }
}

// The remembered places must be those that a scan of the siblings finds.
TEST_F(Placement, FindsWhatAScanWouldHoweverManyChildrenThereAre) {
  static constexpr const XMLCh* names[] = {u"a", u"b", u"c", u"d"};
  EXPECT_TRUE(rc::check([&](const std::vector<std::uint16_t>& calls) {
    ChildOrder order;
    DOMElement& placed = loose("p");
    DOMElement& scanned = loose("p");
    const auto firstOf = [&](const DOMElement& parent, std::span<const XMLCh* const> wanted) {
      DOMElement* at = parent.getFirstElementChild();
      const auto isWanted = [&](const XMLCh* name) {
        return xercesc::XMLString::equals(at->getNodeName(), name);
      };
      while (at && std::ranges::none_of(wanted, isWanted))
        at = at->getNextElementSibling();
      return at;
    };
    for (const std::uint16_t call : calls) {
      const XMLCh* name = names[call % 4];
      std::vector<const XMLCh*> before;
      for (int i = 0; i < 4; ++i) {
        if ((call >> (4 + i) & 1) != 0) before.push_back(names[i]);
      }
      const std::span<const XMLCh* const> one(&name, 1);
      DOMElement* removed = call % 32 == 31 ? firstOf(placed, before) : nullptr;
      if (removed) {
        scanned.removeChild(firstOf(scanned, before));
        order.remove(*removed);
      } else if (call % 8 == 7) {
        order.append(placed, loose(host::utf8(name)));
        scanned.appendChild(&loose(host::utf8(name)));
      } else {
        order.insert(placed, loose(host::utf8(name)), before);
        scanned.insertBefore(&loose(host::utf8(name)), firstOf(scanned, before));
      }
      RC_ASSERT(placed.isEqualNode(&scanned));
      RC_ASSERT(order.first(placed, name) == firstOf(placed, one));
    }
  }));
}
