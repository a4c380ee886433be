#include "statspack/release.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace kestrelix::statspack {
namespace {

using Names = std::vector<std::string>;

bool has(const char* major, const char* table, const char* column) {
  const Table* found = release(major).table(table);
  return found != nullptr && found->column(column) != nullptr;
}

TEST(Release, unknownMajorVersionIsRefused) {
  EXPECT_THROW(release("8"), std::out_of_range);
  EXPECT_THROW(release("10.2"), std::out_of_range);
  EXPECT_THROW(release(""), std::out_of_range);
}

TEST(Release, unknownTableAndColumnAreNull) {
  EXPECT_EQ(release("9").table("stats$nothing"), nullptr);
  EXPECT_EQ(release("9").table("stats$sysstat")->column("nothing"), nullptr);
}

TEST(Release, namesAreFoundWithoutRegardToCase) {
  const Table* table = release("11").table("STATS$ENQUEUE_STATISTICS");
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->name, "stats$enqueue_statistics");
  EXPECT_NE(table->column("CUM_WAIT_TIME"), nullptr);
}

// 41, 67 and 72 tables stand in the releases; 11 has the background events as a view besides, and 10 and 11
// have v$lock_type beside them.
TEST(Release, everyReleaseHasItsTables) {
  EXPECT_EQ(release("9").tables().size(), 41u);
  EXPECT_EQ(release("10").tables().size(), 67u + 1u);
  EXPECT_EQ(release("11").tables().size(), 72u + 1u + 1u);
}

TEST(Release, tablesComeAndGoWithTheReleases) {
  EXPECT_NE(release("9").table("stats$enqueue_stat"), nullptr);
  EXPECT_EQ(release("10").table("stats$enqueue_stat"), nullptr);
  EXPECT_EQ(release("9").table("stats$temp_histogram"), nullptr);
  EXPECT_NE(release("10").table("stats$temp_histogram"), nullptr);
  EXPECT_EQ(release("11").table("stats$temp_histogram"), nullptr);
  EXPECT_EQ(release("9").table("v$lock_type"), nullptr);
  EXPECT_NE(release("10").table("v$lock_type"), nullptr);
}

TEST(Release, columnsComeWithTheReleases) {
  EXPECT_FALSE(has("9", "stats$sql_summary", "old_hash_value"));
  EXPECT_TRUE(has("10", "stats$sql_summary", "old_hash_value"));
  EXPECT_FALSE(has("10", "stats$sql_summary", "avg_hard_parse_time"));
  EXPECT_TRUE(has("11", "stats$sql_summary", "avg_hard_parse_time"));
  EXPECT_FALSE(has("10", "stats$system_event", "total_waits_fg"));
  EXPECT_FALSE(has("9", "stats$filestatxs", "file#"));
}

TEST(Release, backgroundEventsTurnIntoAView) {
  EXPECT_FALSE(release("10").table("stats$bg_event_summary")->view);
  EXPECT_TRUE(release("11").table("stats$bg_event_summary")->view);
  EXPECT_EQ(release("11").table("stats$bg_event_summary")->columns.size(), 7u);
}

TEST(Release, keysStandInTheirOwnOrder) {
  EXPECT_EQ(release("9").table("stats$sql_summary")->key(),
            (Names{"snap_id", "dbid", "instance_number", "hash_value", "text_subset"}));
  EXPECT_EQ(release("11").table("stats$sql_summary")->key(),
            (Names{"snap_id", "dbid", "instance_number", "old_hash_value", "text_subset"}));
  EXPECT_EQ(release("9").table("stats$seg_stat_obj")->key(), (Names{"dataobj#", "obj#", "dbid"}));
  EXPECT_EQ(release("10").table("stats$seg_stat_obj")->key(), (Names{"dataobj#", "obj#", "ts#", "dbid"}));
  EXPECT_TRUE(release("11").table("stats$sgastat")->key().empty());
}

TEST(Release, typesAndNullabilityAreThoseOfTheRelease) {
  const Column* valueOf9 = release("9").table("stats$parameter")->column("value");
  EXPECT_EQ(valueOf9->type, Type::Varchar2);
  EXPECT_EQ(valueOf9->length, 512);
  EXPECT_TRUE(valueOf9->nullable);
  EXPECT_EQ(release("11").table("stats$parameter")->column("value")->length, 4000);

  const Column* snapTime = release("10").table("stats$snapshot")->column("snap_time");
  EXPECT_EQ(snapTime->type, Type::Date);
  EXPECT_FALSE(snapTime->nullable);

  const Column* address = release("10").table("stats$sql_summary")->column("address");
  EXPECT_EQ(address->type, Type::Raw);
  EXPECT_EQ(address->length, 8);

  EXPECT_TRUE(release("9").table("stats$latch_misses_summary")->column("where_in_code")->nullable);
}

TEST(Release, idleEventsGrow) {
  EXPECT_EQ(release("9").idleEvents().size(), 25u);
  EXPECT_EQ(release("10").idleEvents().size(), 70u);
  EXPECT_EQ(release("11").idleEvents().size(), 135u);
  const auto& of10 = release("10").idleEvents();
  EXPECT_EQ(std::count(of10.begin(), of10.end(), "SQL*Net message from client"), 1);
  EXPECT_EQ(std::count(of10.begin(), of10.end(), "VKTM Logical Idle Wait"), 0);
}

TEST(EveryRelease, hasTheWidestOfAll) {
  EXPECT_EQ(everyRelease().table("stats$parameter")->column("value")->length, 4000);
  EXPECT_EQ(everyRelease().table("stats$waitstat")->column("class")->length, 22);
  EXPECT_EQ(everyRelease().table("stats$sql_plan")->column("object_name")->length, 31);
  EXPECT_FALSE(everyRelease().table("stats$bg_event_summary")->view);
}

TEST(EveryRelease, holdsWhatAnyReleaseHas) {
  const Table* text = everyRelease().table("stats$sqltext");
  ASSERT_NE(text, nullptr);
  EXPECT_TRUE(text->column("hash_value")->nullable);
  EXPECT_TRUE(text->column("old_hash_value")->nullable);
  EXPECT_FALSE(text->column("piece")->nullable);
  for (const char* major : {"9", "10", "11"})
    for (const Table& table : release(major).tables()) {
      const Table* joint = everyRelease().table(table.name);
      ASSERT_NE(joint, nullptr) << table.name;
      for (const Column& column : table.columns)
        EXPECT_NE(joint->column(column.name), nullptr) << table.name << "." << column.name;
    }
}

TEST(EveryRelease, hasNoKeys) {
  for (const Table& table : everyRelease().tables()) EXPECT_TRUE(table.key().empty()) << table.name;
}

}  // namespace
}  // namespace kestrelix::statspack
