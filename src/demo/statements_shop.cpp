#include "demo/statements.h"

namespace kestrelix::demo {

std::vector<Statement> shopStatements() {
  using enum Pace;
  using enum PlanShape;
  return {
      {.text = "SELECT PRODUCT_ID, NAME, PRICE, STOCK_HINT, IMAGE_URL FROM PRODUCTS WHERE PRODUCT_ID = :1",
       .module = "web-frontend",
       .share = 112,
       .gets = 4,
       .misses = 8,
       .plan = UniqueLookup,
       .objects = "PRODUCTS PRODUCTS_PK",
       .versions = 34},
      {.text = R"(SELECT p.product_id, p.name, p.price, r.stars, r.votes
  FROM products p LEFT OUTER JOIN ratings r ON r.product_id = p.product_id
 WHERE p.category_id = :1
   AND p.visible = 'Y'
 ORDER BY r.stars DESC NULLS LAST, p.name)",
       .module = "web-frontend",
       .share = 128,
       .gets = 260,
       .misses = 14,
       .rows = 48,
       .plan = NestedLoops,
       .objects = "PRODUCTS PRODUCTS_CATEGORY_IX RATINGS RATINGS_PK",
       .sharableKb = 254,
       .versions = 57,
       .twoPlans = true},
      {.text = "SELECT CART_ID, PRODUCT_ID, QUANTITY FROM CART_ITEMS WHERE CART_ID = :1",
       .module = "web-frontend",
       .share = 58,
       .gets = 5,
       .misses = 11,
       .rows = 4,
       .plan = RangeScan,
       .objects = "CART_ITEMS CART_ITEMS_PK"},
      {.text = R"(MERGE INTO CART_ITEMS C USING (SELECT :1 CART_ID, :2 PRODUCT_ID, :3 QTY FROM DUAL) S
ON (C.CART_ID = S.CART_ID AND C.PRODUCT_ID = S.PRODUCT_ID)
WHEN MATCHED THEN UPDATE SET C.QUANTITY = C.QUANTITY + S.QTY
WHEN NOT MATCHED THEN INSERT (CART_ID, PRODUCT_ID, QUANTITY) VALUES (S.CART_ID, S.PRODUCT_ID, S.QTY))",
       .module = "web-frontend",
       .share = 66,
       .gets = 9,
       .misses = 8,
       .changes = 6,
       .commits = true,
       .plan = Update,
       .objects = "CART_ITEMS CART_ITEMS_PK"},
      {.text = R"(INSERT INTO ORDERS (ORDER_ID, CUSTOMER_ID, TOTAL, STATE, PLACED_AT)
VALUES (SEQ_ORDERS.NEXTVAL, :1, :2, 'PLACED', SYSTIMESTAMP) RETURNING ORDER_ID INTO :3)",
       .module = "checkout",
       .share = 30,
       .gets = 11,
       .misses = 5,
       .changes = 9,
       .commits = true,
       .plan = Insert,
       .objects = "ORDERS ORDERS_PK"},
      {.text = "UPDATE STOCK SET AVAILABLE = AVAILABLE - :1 WHERE PRODUCT_ID = :2 AND AVAILABLE >= :1",
       .module = "checkout",
       .share = 42,
       .gets = 4,
       .misses = 4,
       .changes = 4,
       .commits = true,
       .plan = Update,
       .objects = "STOCK STOCK_PK"},
      {.text = "INSERT INTO CLICK_LOG (AT, SESSION_ID, PAGE, REFERER) VALUES (SYSTIMESTAMP, :1, :2, :3)",
       .module = "web-frontend",
       .share = 72,
       .gets = 3,
       .misses = 1,
       .changes = 3,
       .commits = true,
       .plan = Insert,
       .objects = "CLICK_LOG CLICK_LOG_PK"},
      {.text = R"(SELECT /*+ FIRST_ROWS(20) */ p.product_id, p.name, SCORE(1) AS score
  FROM products p
 WHERE CONTAINS(p.search_text, :1, 1) > 0 /* 全文検索: カタカナ・ひらがな混在 */
   AND p.visible = 'Y'
 ORDER BY SCORE(1) DESC)",
       .module = "search",
       .share = 120,
       .gets = 890,
       .misses = 22,
       .rows = 20,
       .parses = 30,
       .plan = RangeScan,
       .objects = "PRODUCTS PRODUCTS_TEXT_IX",
       .sharableKb = 88,
       .versions = 12},
      {.text = "SELECT COUPON_ID, PERCENT, VALID_UNTIL FROM COUPONS WHERE CODE = UPPER(:1)",
       .module = "checkout",
       .share = 22,
       .gets = 3,
       .misses = 3,
       .plan = UniqueLookup,
       .objects = "COUPONS COUPONS_CODE_UK"},
      {.text = "BEGIN SHOP.PKG_RECOMMEND.FOR_CUSTOMER(:1,:2,:3); END;",
       .module = "web-frontend",
       .share = 86,
       .gets = 74,
       .misses = 9,
       .rows = 1,
       .sharableKb = 61},
      {.text = R"(SELECT PRODUCT_ID, COUNT(*) CNT
  FROM ORDER_ITEMS
 WHERE ORDER_ID IN (SELECT ORDER_ID FROM ORDER_ITEMS WHERE PRODUCT_ID = :B1)
   AND PRODUCT_ID <> :B1
 GROUP BY PRODUCT_ID
 ORDER BY 2 DESC)",
       .module = "web-frontend",
       .share = 94,
       .gets = 380,
       .misses = 24,
       .rows = 10,
       .plan = NestedLoops,
       .objects = "ORDER_ITEMS ORDER_ITEMS_PRODUCT_IX ORDER_ITEMS ORDER_ITEMS_PK",
       .twoPlans = true},
      {.text = R"(SELECT TRUNC(placed_at, 'HH24') AS hour,
       COUNT(*) AS orders, SUM(total) AS turnover,
       ROUND(AVG(total), 2) AS average,
       SUM(CASE state WHEN 'CANCELLED' THEN 1 ELSE 0 END) AS cancelled
  FROM orders
 WHERE placed_at >= TRUNC(SYSDATE) - 7
 GROUP BY TRUNC(placed_at, 'HH24')
 ORDER BY 1)",
       .module = "dashboard",
       .pace = Reports,
       .share = 90,
       .gets = 240000,
       .misses = 160,
       .rows = 168,
       .parses = 100,
       .plan = RangeScan,
       .objects = "ORDERS ORDERS_PLACED_IX",
       .sharableKb = 1130},
      {.text = R"(INSERT /*+ APPEND */ INTO CLICK_SUMMARY
SELECT TRUNC(AT), PAGE, COUNT(*), COUNT(DISTINCT SESSION_ID)
  FROM CLICK_LOG
 WHERE AT >= TRUNC(SYSDATE) - 1 AND AT < TRUNC(SYSDATE)
 GROUP BY TRUNC(AT), PAGE)",
       .module = "nightly",
       .pace = Night,
       .perHour = 1,
       .gets = 31000000,
       .misses = 520,
       .rows = 190000,
       .changes = 84000,
       .commits = true,
       .parses = 100,
       .plan = Partitions,
       .objects = "CLICK_LOG"},
      {.text = R"(UPDATE PRODUCTS P SET P.STOCK_HINT = (SELECT SUM(S.AVAILABLE) FROM STOCK S
                                         WHERE S.PRODUCT_ID = P.PRODUCT_ID))",
       .module = "nightly",
       .pace = Night,
       .perHour = 4,
       .gets = 9800000,
       .misses = 42,
       .rows = 1050000,
       .changes = 1900000,
       .commits = true,
       .parses = 100,
       .plan = FullScan,
       .objects = "PRODUCTS"},
      {.text = R"(SELECT /* セール一覧 */ p.product_id, p.name, p.price, s.sale_price,
       (SELECT COUNT(*) FROM order_items oi WHERE oi.product_id = p.product_id) AS sold
  FROM products p, sale_prices s
 WHERE s.product_id = p.product_id
   AND s.valid_from <= SYSDATE
   AND NVL(s.valid_until, SYSDATE) >= SYSDATE
 ORDER BY sold DESC)",
       .module = "web-frontend",
       .pace = Bad,
       .share = 1000,
       .gets = 128000,
       .misses = 170,
       .rows = 40,
       .plan = HashJoin,
       .objects = "SALE_PRICES SALE_PRICES_PK PRODUCTS PRODUCTS_PK",
       .sharableKb = 82,
       .twoPlans = true},
      {.text = "SELECT POINTS, RANK FROM LOYALTY WHERE CUSTOMER_ID = :1",
       .module = "web-frontend",
       .pace = Mornings,
       .share = 34,
       .gets = 4,
       .misses = 16,
       .plan = UniqueLookup,
       .objects = "LOYALTY LOYALTY_PK"},
      {.text = "SELECT JOB_ID, PAYLOAD FROM MAIL_QUEUE WHERE STATE = 'NEW' ORDER BY JOB_ID FOR UPDATE SKIP "
               "LOCKED",
       .module = "mailer",
       .pace = Steady,
       .share = 24,
       .gets = 120,
       .misses = 2,
       .rows = 8,
       .changes = 16,
       .commits = true,
       .parses = 100,
       .plan = RangeScan,
       .objects = "MAIL_QUEUE MAIL_QUEUE_STATE_IX"},
  };
}

}  // namespace kestrelix::demo
