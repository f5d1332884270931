#include "../support/BuilderTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class Domains : public BuilderTest {
protected:
  int handle = registry().CreateChart();
  Chart& c = chart(handle);
};

TEST_F(Domains, HoldIntervalsSortsAndReferences) {
  const int other = c.AddDomain(true);
  const int domain = c.AddDomain(true);
  const int sort = c.AddSort(domain);
  const int simple = c.AddSimpleSort(sort);
  EXPECT_EQ(c.SetSimpleSortMethod(simple, 93), simple);
  c.AddStatisticSort(sort, domain, other);
  EXPECT_EQ(c.SetSortDescending(sort, false), sort);
  EXPECT_EQ(c.SetDomainDescending(domain, true), domain) << "on the first sort";
  c.AddSort(domain);
  c.AddDomainReference(domain, other);
  c.AddInterval(domain, text("-1"), text("1"));
  EXPECT_EQ(fragment(handle, domain),
            R"(<domain categorical="true" id="domain2"><interval max="1" min="-1"/>)"
            R"(<sort descending="true"><simpleSort method="natural"/>)"
            R"(<statisticSort sourceVariable="domain2" statVariable="domain1"/></sort><sort/>)"
            R"(<domainReference domain="domain1"/></domain>)");
  EXPECT_EQ(c.SetDomainDescending(other, false), other);
  EXPECT_EQ(c.AddFrame(0, -1), domain + 8) << "the sort made on the way has a handle";
  EXPECT_EQ(fragment(handle, other), R"(<domain categorical="true" id="domain1">)"
                                     R"(<sort descending="false"/></domain>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Domains, TakeInOnlyWhatIsAsCategorical) {
  const int made = chartOn(described({Column("v", "", 0, {5, 8, 0})}, {0}));
  Chart& on = chart(made);
  const int numbers = on.AddDomain(false);
  const int categories = on.AddDomain(true);
  const int variable = on.AddVariable(on.AddSource(), 0, false);
  const int neither = on.mapElement(on.getChart()->createElement(u"domain"));
  const int good = on.AddDomainReference(numbers, variable);
  EXPECT_EQ(fragment(made, good), R"(<domainReference domain="variable3"/>)");
  const std::string before = fragment(made, 0);
  EXPECT_EQ(on.AddDomainReference(numbers, categories), -1);
  EXPECT_EQ(on.AddDomainReference(categories, variable), -1);
  EXPECT_EQ(on.AddDomainReference(categories, neither), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("domainReference (domain2) categorical value of true is not consistent "
                          "with that of the parent( domain1) value of false",
                          "domainReference (variable3) categorical value of false is not "
                          "consistent with that of the parent( domain2) value of true",
                          "domainReference () categorical value of  is not consistent with that "
                          "of the parent( domain2) value of true"));
  EXPECT_EQ(fragment(made, 0), before);
}
