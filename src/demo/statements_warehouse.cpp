#include "demo/statements.h"

namespace kestrelix::demo {

std::vector<Statement> warehouseStatements() {
  using enum Pace;
  using enum PlanShape;
  return {
      {.text = R"(SELECT d.year_month, s.region_name, p.category_name,
       SUM(f.amount) AS amount, SUM(f.quantity) AS quantity,
       RATIO_TO_REPORT(SUM(f.amount)) OVER (PARTITION BY d.year_month) AS share
  FROM sales_fact f, date_dim d, store_dim s, product_dim p
 WHERE f.date_key = d.date_key
   AND f.store_key = s.store_key
   AND f.product_key = p.product_key
   AND d.year_month BETWEEN :1 AND :2
   AND s.region_name = '関東'
 GROUP BY d.year_month, s.region_name, p.category_name)",
       .module = "BI Server",
       .share = 170,
       .gets = 360000,
       .misses = 260,
       .rows = 900,
       .parses = 100,
       .plan = Partitions,
       .objects = "SALES_FACT",
       .sharableKb = 1690,
       .versions = 6,
       .twoPlans = true},
      {.text = R"(WITH base AS (
  SELECT customer_key, SUM(amount) AS amount
    FROM sales_fact
   WHERE date_key BETWEEN :1 AND :2
   GROUP BY customer_key)
SELECT NTILE(10) OVER (ORDER BY amount DESC) AS decile, COUNT(*), SUM(amount)
  FROM base
 GROUP BY NTILE(10) OVER (ORDER BY amount DESC))",
       .module = "BI Server",
       .share = 130,
       .gets = 520000,
       .misses = 340,
       .rows = 10,
       .parses = 100,
       .plan = Partitions,
       .objects = "SALES_FACT",
       .sharableKb = 1240,
       .versions = 2},
      {.text = "SELECT STORE_KEY, STORE_NAME, REGION_NAME FROM STORE_DIM ORDER BY STORE_NAME",
       .module = "BI Server",
       .share = 26,
       .gets = 180,
       .misses = 1,
       .rows = 640,
       .parses = 100,
       .plan = FullScan,
       .objects = "STORE_DIM"},
      {.text = "SELECT PRODUCT_NAME, CATEGORY_NAME FROM PRODUCT_DIM WHERE PRODUCT_KEY = :B1",
       .module = "ETL",
       .share = 60,
       .gets = 3,
       .misses = 3,
       .plan = UniqueLookup,
       .objects = "PRODUCT_DIM PRODUCT_DIM_PK",
       .versions = 24},
      {.text = "SELECT STATE, MESSAGE FROM LOAD_CONTROL WHERE RUN_ID = :1 AND STEP = :2",
       .module = "ETL",
       .share = 18,
       .gets = 4,
       .misses = 1,
       .plan = UniqueLookup,
       .objects = "LOAD_CONTROL LOAD_CONTROL_PK"},
      {.text = "UPDATE LOAD_CONTROL SET STATE = :1, CHANGED = SYSDATE WHERE RUN_ID = :2 AND STEP = :3",
       .module = "ETL",
       .pace = Steady,
       .share = 2,
       .gets = 4,
       .misses = 1,
       .changes = 3,
       .commits = true,
       .plan = Update,
       .objects = "LOAD_CONTROL LOAD_CONTROL_PK"},
      {.text = "SELECT USER_ID, ROLE, PREFS FROM BI_USERS WHERE LOGIN = :1",
       .module = "BI Server",
       .share = 20,
       .gets = 3,
       .misses = 0,
       .parses = 50,
       .plan = UniqueLookup,
       .objects = "BI_USERS BI_USERS_PK"},
      {.text = "INSERT INTO BI_USAGE (AT, USER_ID, REPORT, SECONDS) VALUES (SYSDATE, :1, :2, :3)",
       .module = "BI Server",
       .share = 4,
       .gets = 3,
       .misses = 0,
       .changes = 3,
       .commits = true,
       .plan = Insert,
       .objects = "BI_USAGE BI_USAGE_PK"},
      {.text = R"(INSERT /*+ APPEND PARALLEL(F,4) */ INTO SALES_FACT F
SELECT /*+ PARALLEL(S,4) */ D.DATE_KEY, ST.STORE_KEY, P.PRODUCT_KEY, C.CUSTOMER_KEY, S.QTY, S.AMOUNT
  FROM STG_SALES S, DATE_DIM D, STORE_DIM ST, PRODUCT_DIM P, CUSTOMER_DIM C
 WHERE D.CALENDAR_DATE = S.SOLD_ON
   AND ST.STORE_CODE = S.STORE_CODE
   AND P.JAN_CODE = S.JAN_CODE
   AND C.CARD_NO (+) = S.CARD_NO)",
       .module = "ETL",
       .pace = Night,
       .perHour = 60,
       .gets = 7400000,
       .misses = 190,
       .rows = 8800000,
       .changes = 540000,
       .commits = true,
       .parses = 100,
       .plan = HashJoin,
       .objects = "STG_SALES STG_SALES_IX SALES_FACT SALES_FACT_DATE_IX",
       .sharableKb = 380,
       .twoPlans = true},
      {.text = R"(MERGE INTO CUSTOMER_DIM C USING STG_CUSTOMERS S ON (C.CARD_NO = S.CARD_NO)
WHEN MATCHED THEN UPDATE SET C.NAME = S.NAME, C.PREFECTURE = S.PREFECTURE /* 都道府県 */
WHEN NOT MATCHED THEN INSERT (CUSTOMER_KEY, CARD_NO, NAME, PREFECTURE)
VALUES (SEQ_CUSTOMER.NEXTVAL, S.CARD_NO, S.NAME, S.PREFECTURE))",
       .module = "ETL",
       .pace = Night,
       .perHour = 24,
       .gets = 9600000,
       .misses = 48,
       .rows = 1600000,
       .changes = 3500000,
       .commits = true,
       .parses = 100,
       .plan = HashJoin,
       .objects = "STG_CUSTOMERS STG_CUSTOMERS_IX CUSTOMER_DIM CUSTOMER_DIM_CARD_UK",
       .sharableKb = 130},
      {.text = "BEGIN DBMS_MVIEW.REFRESH('MV_MONTHLY_SALES', 'F'); END;",
       .module = "ETL",
       .pace = Night,
       .perHour = 3,
       .gets = 46000000,
       .misses = 90,
       .rows = 1,
       .changes = 1700000,
       .commits = true,
       .parses = 100,
       .sharableKb = 96},
      {.text = R"(SELECT year_month, region_name, SUM(amount) AS amount,
       LAG(SUM(amount)) OVER (PARTITION BY region_name ORDER BY year_month) AS amount_before
  FROM mv_monthly_sales
 GROUP BY year_month, region_name
 ORDER BY region_name, year_month)",
       .module = "BI Server",
       .pace = Reports,
       .share = 96,
       .gets = 68000,
       .misses = 70,
       .rows = 1600,
       .parses = 100,
       .plan = FullScan,
       .objects = "MV_MONTHLY_SALES",
       .sharableKb = 108},
      {.text = R"(SELECT COUNT(DISTINCT f.customer_key) AS buyers, COUNT(*) AS lines, SUM(f.amount) AS amount
  FROM sales_fact f, product_dim p
 WHERE p.product_key = f.product_key
   AND p.category_name LIKE :1)",
       .module = "BI Server",
       .pace = Reports,
       .share = 140,
       .gets = 900000,
       .misses = 410,
       .rows = 1,
       .parses = 100,
       .plan = Partitions,
       .objects = "SALES_FACT",
       .sharableKb = 152},
      {.text = R"(SELECT a.customer_key, b.customer_key, COUNT(*) AS together
  FROM sales_fact a, sales_fact b
 WHERE a.store_key = b.store_key
   AND a.date_key = b.date_key
   AND a.customer_key < b.customer_key /* 併売分析 (試験中) */
 GROUP BY a.customer_key, b.customer_key
HAVING COUNT(*) > 10)",
       .module = "SQL Developer",
       .pace = Bad,
       .share = 1000,
       .gets = 5200000,
       .misses = 90,
       .rows = 7,
       .parses = 100,
       .plan = HashJoin,
       .objects = "SALES_FACT SALES_FACT_DATE_IX SALES_FACT SALES_FACT_DATE_IX",
       .sharableKb = 84,
       .twoPlans = true},
      {.text = "SELECT SOLD_ON, COUNT(*) FROM STG_SALES GROUP BY SOLD_ON ORDER BY SOLD_ON",
       .module = "ETL",
       .pace = Mornings,
       .share = 60,
       .gets = 46000,
       .misses = 220,
       .rows = 3,
       .parses = 100,
       .plan = FullScan,
       .objects = "STG_SALES"},
  };
}

}  // namespace kestrelix::demo
