// The demo's statements: texts in pieces, plans, cursors that come and go.
#include <map>

#include "demo/demo_support.h"
#include "platform/code_page.h"

namespace kestrelix::demo {
namespace {

TEST_F(DemoTest, textPiecesHoldSixtyFourBytesOfTheCodePage) {
  for (const std::string& piece : ask(R"(select sql_text from "stats$sqltext")"))
    EXPECT_LE(codePageLength(piece), 64u) << piece;
  // All but the last are full, or would be with one byte of a double-byte character.
  for (const std::string& piece :
       ask(R"(select sql_text from "stats$sqltext" t where exists (select 1 from "stats$sqltext" n
              where coalesce(n.old_hash_value, n.hash_value) = coalesce(t.old_hash_value, t.hash_value)
              and (n.old_hash_value is null) = (t.old_hash_value is null) and n.piece = t.piece + 1))"))
    EXPECT_GE(codePageLength(piece), 63u) << piece;
}

TEST_F(DemoTest, textsHaveLineEndsAndJapaneseOverSeveralPieces) {
  EXPECT_NE(ask(R"(select count(*) from "stats$sqltext" where instr(sql_text, char(13)||char(10)) > 0)"),
            (Texts{"0"}));
  EXPECT_NE(ask(R"(select count(*) from "stats$sqltext" where sql_text like '%関東%')"), (Texts{"0"}));
  EXPECT_EQ(ask(R"(select max(piece) > 8 from "stats$sqltext")"), (Texts{"1"}));
  // Pieces are numbered from 0 without a gap.
  EXPECT_EQ(breaches(R"(select text_subset from "stats$sqltext" group by old_hash_value, hash_value
                        having max(piece) <> count(*) - 1 or min(piece) <> 0)"),
            kNone);
}

TEST_F(DemoTest, everyCapturedStatementHasItsText) {
  EXPECT_EQ(
      breaches(R"(select q.snap_id||' '||q.text_subset from "stats$sql_summary" q where not exists (select 1
                        from "stats$sqltext" t where t.text_subset = q.text_subset
                        and (t.old_hash_value = q.old_hash_value
                          or q.old_hash_value is null and t.hash_value = q.hash_value)))"),
      kNone);
  EXPECT_EQ(
      breaches(R"(select text_subset from "stats$sql_summary" where substr(sql_text, 1, length(text_subset))
                        <> text_subset)"),
      kNone);
}

TEST_F(DemoTest, plansAreUsedFromLevelSixAndSomeStatementsHaveTwo) {
  EXPECT_EQ(breaches(R"(select u.snap_id from "stats$sql_plan_usage" u join "stats$snapshot" s using (dbid,
                        instance_number, snap_id) where s.snap_level < 6)"),
            kNone);
  EXPECT_EQ(breaches(R"(select plan_hash_value from "stats$sql_plan_usage" where plan_hash_value > 0 and
                        plan_hash_value not in (select plan_hash_value from "stats$sql_plan"))"),
            kNone);
  // In every database a statement has two plans at one snapshot.
  EXPECT_EQ(ask(R"(select count(distinct dbid) from (select dbid from "stats$sql_plan_usage"
                   group by dbid, instance_number, snap_id, coalesce(old_hash_value, hash_value), text_subset
                   having count(distinct plan_hash_value) = 2))"),
            (Texts{"4"}));
  EXPECT_NE(ask(R"(select count(*) from "stats$sql_plan" where object_name like 'SYS_LE_%')"), (Texts{"0"}));
}

TEST_F(DemoTest, planLinesAreNumberedAndNested) {
  EXPECT_EQ(breaches(R"(select plan_hash_value from "stats$sql_plan" group by 1
                        having max(id) <> count(*) - 1 or min(depth) <> 0)"),
            kNone);
  EXPECT_EQ(breaches(R"(select c.plan_hash_value from "stats$sql_plan" c left join "stats$sql_plan" p
                        on p.plan_hash_value = c.plan_hash_value and p.id = c.parent_id
                        where c.id > 0 and (p.id is null or p.depth <> c.depth - 1))"),
            kNone);
}

TEST_F(DemoTest, someStatementsAgeOutAndComeBackElsewhere) {
  EXPECT_EQ(ask(R"(select count(distinct dbid) from (select q.dbid from "stats$sql_summary" q
                   join "stats$snapshot" s using (dbid, instance_number, snap_id)
                   group by q.dbid, q.instance_number, s.startup_time, coalesce(q.old_hash_value, q.hash_value)
                   having count(distinct q.address) > 1))"),
            (Texts{"4"}));
}

TEST_F(DemoTest, someStatementsPassTheThresholdsOfMemoryAndVersions) {
  EXPECT_EQ(ask(R"(select count(distinct dbid) from "stats$sql_summary" where sharable_mem > 1048576)"),
            (Texts{"4"}));
  EXPECT_EQ(ask(R"(select count(distinct dbid) from "stats$sql_summary" where version_count > 20)"),
            (Texts{"4"}));
}

TEST_F(DemoTest, segmentsAreCapturedFromLevelSevenAndHavePartitions) {
  EXPECT_EQ(breaches(R"(select g.snap_id from "stats$seg_stat" g join "stats$snapshot" s using (dbid,
                        instance_number, snap_id) where s.snap_level < 7)"),
            kNone);
  EXPECT_EQ(
      breaches(R"(select "obj#" from "stats$seg_stat" g where not exists (select 1 from "stats$seg_stat_obj" n
                        where n.dbid = g.dbid and n."obj#" = g."obj#" and n."dataobj#" = g."dataobj#"
                        and n."ts#" = g."ts#"))"),
      kNone);
  EXPECT_NE(ask(R"(select count(*) from "stats$seg_stat_obj" where subobject_name is not null)"),
            (Texts{"0"}));
}

}  // namespace
}  // namespace kestrelix::demo
