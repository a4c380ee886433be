// What all section objects share: binding a pair, fetching into records, the accessors, and their failures.
#include "report/SectionObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/snapshots.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::FakeServer;

/// Two columns of a table, followed by a text key; the bind TOP_NUM is a query of its own.
class Events : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(EVENT, WAITS)
  Events()
      : ListSectionObject("clsEvents", fieldNames(),
                          {argument("B5", ServerType::String),
                           {"TOP_NUM", ServerType::Number, "getTOP_NUM", "select 5 AS TOP_NUM from top "}}) {
    all("getEVENTS_ALL", "select all ");
    col("getEVENTS_COL", "select col ");
  }
};

/// Three metrics, of which the versions have their own.
class Metrics : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(FIRST, SECOND, THIRD)
  Metrics() : MetricSectionObject("clsMetrics", fieldNames()) {
    metric("getFIRST", {Field::FIRST}, "select first ");
    metric("getSECOND", {Field::SECOND}, "select second ");
    metric("getTHIRD", {Field::THIRD}, "select third ");
    order(V9, {"getTHIRD"});
    order(V10_11, {"getFIRST", "getSECOND", "getTHIRD"});
  }
};

/// Pair 0 is an ordinary one, pair 1 lies across a restart.
class SectionObjects : public testing::Test {
 protected:
  SectionObjects() {
    testing_support::laySnapshots(server, {{"1", "2026-01-05 10:00:00"},
                                           {"2", "2026-01-05 11:00:00"},
                                           {"3", "2026-01-05 12:00:00", "7", "2026-01-05 11:30:00"}});
    pairs.Initialize(database, failures);
    pairs.getSTART_END_SNAP_ID(false);
    lay("from top", {"TOP_NUM"}, {{"5"}});
    server.asked.clear();
  }

  using Rows = std::vector<std::vector<std::optional<std::string>>>;
  void lay(const char* when, std::vector<std::string> columns, Rows rows) {
    testing_support::Answer& answer = server.answer(when);
    answer.columns = std::move(columns);
    answer.rows = std::move(rows);
  }
  /// Asks for a member as a rendering does.
  template <class Object>
  bool fetch(Object& object, const char* member, int pair) {
    return object.setBAIND_VALUE(pairs.keys(pair), {"key"}) && object.get(member, pair) &&
           object.unsetBAIND_VALUE();
  }
  std::vector<std::string> boxes() const {
    std::vector<std::string> texts;
    for (const Failure& failure : failures) texts.push_back(failure.box);
    return texts;
  }
  std::vector<std::string> statements() const {
    std::vector<std::string> texts;
    for (const auto& asked : server.asked) texts.push_back(asked.statement);
    return texts;
  }
  template <class Object>
  void initialize(Object& object, const char* version = "10") {
    object.Initialize(database, pairs, failures, version);
  }

  FakeServer server;
  Failures failures;
  testing_support::FakeDatabase database{server};
  clsSnapId pairs;
  Events events;
  Metrics metrics;
};

TEST_F(SectionObjects, anAllFetchAppendsARecordForEachRow) {
  lay("select all", {"EVENT", "WAITS"}, {{"latch free", "7"}, {"db file scattered read", " "}});
  initialize(events);
  EXPECT_TRUE(fetch(events, "getEVENTS_ALL", 0));
  ASSERT_EQ(events.rownum(), 2);
  EXPECT_EQ(events.EVENT(0, 0), "latch free");
  EXPECT_EQ(events.EVENT(1, 0), "db file scattered read");
  EXPECT_EQ(events.WAITS(1, 0), " ") << "the blank of no value stays";
}

TEST_F(SectionObjects, anAllFetchOfNothingAppendsNoRecord) {
  lay("select all", {"EVENT", "WAITS"}, {});
  initialize(events);
  EXPECT_TRUE(fetch(events, "getEVENTS_ALL", 0));
  EXPECT_EQ(events.rownum(), 0);
}

TEST_F(SectionObjects, anAllFetchAcrossARestartSendsNothingAndAppendsOneEmptyRecord) {
  initialize(events);
  EXPECT_TRUE(fetch(events, "getEVENTS_ALL", 1));
  EXPECT_EQ(events.rownum(), 1);
  EXPECT_EQ(events.EVENT(0, 1), "");
  EXPECT_THAT(statements(), ElementsAre("select 5 AS TOP_NUM from top ")) << "the bind's own query runs";
}

TEST_F(SectionObjects, aColFetchAppendsOneRecordForEachPairSoThatTheyStayAligned) {
  lay("select col", {"EVENT", "WAITS"}, {{"latch free", "7"}, {"latch free", "8"}});
  initialize(events);
  EXPECT_TRUE(fetch(events, "getEVENTS_COL", 0));
  EXPECT_TRUE(fetch(events, "getEVENTS_COL", 1));
  lay("select col", {"EVENT", "WAITS"}, {});
  EXPECT_TRUE(fetch(events, "getEVENTS_COL", 0));
  ASSERT_EQ(events.rownum(), 3);
  EXPECT_EQ(events.WAITS(0, 0), "7") << "further rows aren't looked at";
  EXPECT_EQ(events.EVENT(1, 1), "") << "across the restart";
  EXPECT_EQ(events.EVENT(2, 0), "") << "the key was not found";
}

TEST_F(SectionObjects, anAccessorOfARestartedPairIsEmptyWhateverTheRecordHolds) {
  lay("select all", {"EVENT", "WAITS"}, {{"latch free", "7"}});
  initialize(events);
  EXPECT_TRUE(fetch(events, "getEVENTS_ALL", 0));
  EXPECT_EQ(events.WAITS(0, 1), "");
  EXPECT_EQ(events.WAITS(0, 0), "7");
}

TEST_F(SectionObjects, bindsArePairKeysArgumentsAndFetchedFigures) {
  lay("select all", {"EVENT", "WAITS"}, {});
  initialize(events);
  EXPECT_TRUE(fetch(events, "getEVENTS_ALL", 0));
  const auto& binds = server.asked.back().binds;
  EXPECT_EQ(binds.at("B1"), std::pair(ServerType::Number, std::string("1001")));
  EXPECT_EQ(binds.at("B2"), std::pair(ServerType::Number, std::string("1")));
  EXPECT_EQ(binds.at("B3"), std::pair(ServerType::Number, std::string("1")));
  EXPECT_EQ(binds.at("B4"), std::pair(ServerType::Number, std::string("2")));
  EXPECT_EQ(binds.at("B5"), std::pair(ServerType::String, std::string("key")));
  EXPECT_EQ(binds.at("TOP_NUM"), std::pair(ServerType::Number, std::string("5")));
  EXPECT_EQ(database.parameters().count(), 0u) << "they are taken off again";
}

TEST_F(SectionObjects, anArgumentLeftOutIsEmpty) {
  lay("select all", {"EVENT", "WAITS"}, {});
  initialize(events);
  EXPECT_TRUE(events.setBAIND_VALUE(pairs.keys(0)));
  EXPECT_TRUE(events.get("getEVENTS_ALL", 0));
  EXPECT_EQ(server.asked.back().binds.at("B5").second, "");
}

TEST_F(SectionObjects, bindingTwiceWithoutTakingOffFailsInTheBinding) {
  initialize(events);
  EXPECT_TRUE(events.setBAIND_VALUE(pairs.keys(0)));
  EXPECT_FALSE(events.setBAIND_VALUE(pairs.keys(0)));
  EXPECT_THAT(boxes(), ElementsAre("(clsEvents){setBAIND_VALUE} Error"));
}

TEST_F(SectionObjects, takingOffWhatIsNotBoundFailsInItsMember) {
  initialize(events);
  EXPECT_FALSE(events.unsetBAIND_VALUE());
  EXPECT_THAT(boxes(), ElementsAre("(clsEvents){unsetBAIND_VALUE} Error"));
}

TEST_F(SectionObjects, aFigureThatCannotBeFetchedEndsTheBindingWithItsOwnBoxAlone) {
  server.answer("from top").fails = true;
  initialize(events);
  EXPECT_FALSE(events.setBAIND_VALUE(pairs.keys(0)));
  EXPECT_THAT(boxes(), ElementsAre("(clsEvents){getTOP_NUM} Error"));
  EXPECT_EQ(database.parameters().count(), 6u) << "what was added stays";
}

TEST_F(SectionObjects, aFetchedFigureThatIsNoNumberFailsInTheBinding) {
  lay("from top", {"TOP_NUM"}, {{"five"}});
  initialize(events);
  EXPECT_FALSE(events.setBAIND_VALUE(pairs.keys(0)));
  EXPECT_THAT(boxes(), ElementsAre("(clsEvents){setBAIND_VALUE} Error"));
}

TEST_F(SectionObjects, aNullInAFetchedFieldFailsInTheGetter) {
  lay("select all", {"EVENT", "WAITS"}, {{"latch free", std::nullopt}});
  initialize(events);
  EXPECT_FALSE(fetch(events, "getEVENTS_ALL", 0));
  EXPECT_THAT(boxes(), ElementsAre("(clsEvents){getEVENTS_ALL} Error"));
}

TEST_F(SectionObjects, bindingAMetricObjectAppendsTheRecordThatItsGettersFill) {
  lay("select first", {"FIRST"}, {{"1"}});
  lay("select third", {"THIRD"}, {{"3"}});
  initialize(metrics);
  EXPECT_TRUE(fetch(metrics, "getFIRST", 0));
  EXPECT_TRUE(fetch(metrics, "getTHIRD", 0));
  ASSERT_EQ(metrics.rownum(), 2);
  EXPECT_EQ(metrics.FIRST(0, 0), "1");
  EXPECT_EQ(metrics.THIRD(0, 0), "");
  EXPECT_EQ(metrics.THIRD(1, 0), "3");
}

TEST_F(SectionObjects, getAllStopsAtTheFirstThatFails) {
  lay("select first", {"FIRST"}, {{"1"}});
  lay("select second", {"SECOND"}, {});
  lay("select third", {"THIRD"}, {{"3"}});
  initialize(metrics);
  ASSERT_TRUE(metrics.setBAIND_VALUE(pairs.keys(0)));
  EXPECT_FALSE(metrics.getALL(0));
  EXPECT_THAT(boxes(), ElementsAre("(clsMetrics){getSECOND} Error")) << "no row, no field";
  EXPECT_EQ(metrics.FIRST(0, 0), "1");
  EXPECT_EQ(metrics.THIRD(0, 0), "");
}

TEST_F(SectionObjects, getAllRunsTheMembersOfItsVersion) {
  lay("select third", {"THIRD"}, {{"3"}});
  initialize(metrics, "9");
  ASSERT_TRUE(metrics.setBAIND_VALUE(pairs.keys(0)));
  EXPECT_TRUE(metrics.getALL(0));
  EXPECT_THAT(statements(), ElementsAre("select third "));
}

TEST_F(SectionObjects, getAllOfAnUnknownVersionDoesNothingAndSucceeds) {
  for (const char* version : {"", "8", "12"}) {
    initialize(metrics, version);
    ASSERT_TRUE(metrics.setBAIND_VALUE(pairs.keys(0)));
    EXPECT_TRUE(metrics.getALL(0)) << version;
    EXPECT_TRUE(metrics.unsetBAIND_VALUE());
  }
  EXPECT_THAT(statements(), IsEmpty());
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(SectionObjects, metricsAcrossARestartSendNothingAndAreEmpty) {
  initialize(metrics);
  ASSERT_TRUE(metrics.setBAIND_VALUE(pairs.keys(1)));
  EXPECT_TRUE(metrics.getALL(1));
  EXPECT_THAT(statements(), IsEmpty());
  EXPECT_EQ(metrics.rownum(), 1);
  EXPECT_EQ(metrics.SECOND(0, 1), "");
}

TEST_F(SectionObjects, anotherInitializeForgetsTheRecords) {
  lay("select all", {"EVENT", "WAITS"}, {{"latch free", "7"}});
  initialize(events);
  EXPECT_TRUE(fetch(events, "getEVENTS_ALL", 0));
  initialize(events);
  EXPECT_EQ(events.rownum(), 0);
}

}  // namespace
}  // namespace kestrelix
