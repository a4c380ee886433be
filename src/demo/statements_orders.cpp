#include "demo/statements.h"

namespace kestrelix::demo {

std::vector<Statement> orderStatements() {
  using enum Pace;
  using enum PlanShape;
  return {
      {.text = "SELECT CUSTOMER_NAME, CREDIT_LIMIT, BLOCKED FROM CUSTOMERS WHERE CUSTOMER_ID = :B1",
       .module = "ORDERENTRY.EXE",
       .share = 62,
       .gets = 3,
       .misses = 12,
       .plan = UniqueLookup,
       .objects = "CUSTOMERS CUSTOMERS_PK"},
      {.text = R"(SELECT o.order_id, o.order_date, o.status, SUM(l.quantity * l.unit_price) AS amount
  FROM orders o, order_lines l
 WHERE o.order_id = l.order_id
   AND o.customer_id = :b1
   AND o.order_date >= :b2
 GROUP BY o.order_id, o.order_date, o.status
 ORDER BY o.order_date DESC)",
       .module = "ORDERENTRY.EXE",
       .share = 118,
       .gets = 64,
       .misses = 34,
       .rows = 12,
       .plan = NestedLoops,
       .objects = "ORDERS ORDERS_CUST_IX ORDER_LINES ORDER_LINES_PK",
       .sharableKb = 46,
       .versions = 38,
       .twoPlans = true},
      {.text =
           "SELECT QTY_ON_HAND, QTY_RESERVED FROM STOCK WHERE ITEM_ID = :B1 AND WAREHOUSE = :B2 FOR UPDATE",
       .module = "ORDERENTRY.EXE",
       .share = 84,
       .gets = 5,
       .misses = 9,
       .changes = 2,
       .plan = UniqueLookup,
       .objects = "STOCK STOCK_PK"},
      {.text = R"(INSERT INTO ORDERS (ORDER_ID, CUSTOMER_ID, ORDER_DATE, STATUS, CHANNEL, ENTERED_BY)
VALUES (ORDERS_SEQ.NEXTVAL, :B1, SYSDATE, 'NEW', :B2, USER))",
       .module = "ORDERENTRY.EXE",
       .share = 34,
       .gets = 9,
       .misses = 6,
       .changes = 7,
       .commits = true,
       .plan = Insert,
       .objects = "ORDERS ORDERS_PK"},
      {.text = R"(INSERT INTO ORDER_LINES (ORDER_ID, LINE_NO, ITEM_ID, QUANTITY, UNIT_PRICE)
VALUES (:B1, :B2, :B3, :B4, :B5))",
       .module = "ORDERENTRY.EXE",
       .share = 58,
       .gets = 7,
       .misses = 6,
       .changes = 6,
       .plan = Insert,
       .objects = "ORDER_LINES ORDER_LINES_PK"},
      {.text = "UPDATE STOCK SET QTY_RESERVED = QTY_RESERVED + :B1 WHERE ITEM_ID = :B2 AND WAREHOUSE = :B3",
       .module = "ORDERENTRY.EXE",
       .share = 66,
       .gets = 4,
       .misses = 4,
       .changes = 4,
       .commits = true,
       .plan = Update,
       .objects = "STOCK STOCK_PK"},
      {.text = "UPDATE ORDERS SET STATUS = :B1, CHANGED = SYSDATE WHERE ORDER_ID = :B2",
       .module = "SHIPPING.EXE",
       .share = 30,
       .gets = 5,
       .misses = 14,
       .changes = 4,
       .commits = true,
       .plan = Update,
       .objects = "ORDERS ORDERS_PK"},
      {.text = R"(SELECT item_id, description, price /* 商品検索 */
  FROM items
 WHERE UPPER(description) LIKE '%' || UPPER(:b1) || '%'
   AND discontinued = 'N'
 ORDER BY description)",
       .module = "ORDERENTRY.EXE",
       .share = 96,
       .gets = 1840,
       .misses = 3,
       .rows = 25,
       .parses = 60,
       .plan = FullScan,
       .objects = "ITEMS",
       .sharableKb = 310,
       .versions = 5},
      {.text = R"(SELECT w.warehouse, SUM(s.qty_on_hand) qty, COUNT(*) items
  FROM stock s, warehouses w
 WHERE s.warehouse = w.warehouse
   AND s.qty_on_hand < s.reorder_level
 GROUP BY w.warehouse)",
       .module = "REPORTS.EXE",
       .pace = Reports,
       .share = 88,
       .gets = 42000,
       .misses = 310,
       .rows = 14,
       .parses = 100,
       .plan = HashJoin,
       .objects = "WAREHOUSES WAREHOUSES_PK STOCK STOCK_PK",
       .sharableKb = 58},
      {.text = R"(SELECT TO_CHAR(o.order_date, 'YYYY-MM') AS ym, c.region, i.category,
       COUNT(DISTINCT o.order_id) AS orders,
       SUM(l.quantity) AS pieces,
       SUM(l.quantity * l.unit_price) AS amount
  FROM orders o, order_lines l, items i, customers c
 WHERE o.order_id = l.order_id
   AND l.item_id = i.item_id
   AND o.customer_id = c.customer_id
   AND o.order_date BETWEEN ADD_MONTHS(TRUNC(SYSDATE, 'MM'), -12) AND SYSDATE
   AND c.region IN ('東京', '大阪', '名古屋', '福岡', '札幌')
 GROUP BY TO_CHAR(o.order_date, 'YYYY-MM'), c.region, i.category
 ORDER BY 1, 2, 3)",
       .module = "REPORTS.EXE",
       .pace = Reports,
       .share = 126,
       .gets = 310000,
       .misses = 420,
       .rows = 480,
       .parses = 100,
       .plan = HashJoin,
       .objects = "ORDERS ORDERS_DATE_IX ORDER_LINES ORDER_LINES_PK",
       .sharableKb = 1460,
       .versions = 4,
       .twoPlans = true},
      {.text = "BEGIN pkg_billing.run_invoices(:1, :2); END;",
       .module = "SQL*Plus",
       .pace = Night,
       .perHour = 12,
       .gets = 6200000,
       .misses = 130,
       .rows = 1,
       .changes = 740000,
       .commits = true,
       .parses = 100,
       .sharableKb = 118},
      {.text = R"(INSERT INTO INVOICES (INVOICE_ID, ORDER_ID, INVOICE_DATE, AMOUNT, VAT)
SELECT INVOICES_SEQ.NEXTVAL, O.ORDER_ID, TRUNC(SYSDATE), O.AMOUNT, O.AMOUNT * 0.05
  FROM ORDERS O
 WHERE O.STATUS = 'SHIPPED' AND O.INVOICED = 'N')",
       .module = "SQL*Plus",
       .pace = Night,
       .perHour = 24,
       .gets = 2900000,
       .misses = 240,
       .rows = 62000,
       .changes = 370000,
       .parses = 100,
       .plan = FullScan,
       .objects = "ORDERS",
       .sharableKb = 44},
      {.text = "DELETE FROM ORDER_HISTORY WHERE ARCHIVED = 'Y' AND ORDER_DATE < :B1",
       .module = "SQL*Plus",
       .pace = Night,
       .perHour = 6,
       .gets = 2900000,
       .misses = 180,
       .rows = 58000,
       .changes = 430000,
       .commits = true,
       .parses = 100,
       .plan = Delete,
       .objects = "ORDER_HISTORY ORDER_HISTORY_DATE_IX"},
      {.text = R"(SELECT /*+ FULL(l) */ l.item_id, l.order_id, o.customer_id, c.customer_name
  FROM order_lines l, orders o, customers c
 WHERE l.order_id = o.order_id
   AND o.customer_id = c.customer_id
   AND TO_CHAR(o.order_date, 'YYYYMMDD') = TO_CHAR(:b1, 'YYYYMMDD')
   AND l.item_id = :b2)",
       .module = "CALLCENTER.EXE",
       .pace = Bad,
       .share = 1000,
       .gets = 92000,
       .misses = 260,
       .rows = 3,
       .plan = HashJoin,
       .objects = "ORDERS ORDERS_DATE_IX ORDER_LINES ORDER_LINES_PK",
       .sharableKb = 74,
       .twoPlans = true},
      {.text = "SELECT COUNT(*) FROM ORDERS WHERE STATUS = 'NEW' AND ORDER_DATE > SYSDATE - 1/24",
       .module = "MONITOR.EXE",
       .pace = Steady,
       .perHour = 360,
       .gets = 340,
       .misses = 5,
       .parses = 100,
       .plan = RangeScan,
       .objects = "ORDERS ORDERS_DATE_IX"},
      {.text = "SELECT PRICE, VALID_FROM FROM PRICE_LIST WHERE ITEM_ID = :B1 AND CURRENCY = :B2 ORDER BY "
               "VALID_FROM",
       .module = "ORDERENTRY.EXE",
       .share = 52,
       .gets = 6,
       .misses = 8,
       .rows = 2,
       .plan = RangeScan,
       .objects = "PRICE_LIST PRICE_LIST_IX",
       .versions = 27},
      {.text = "SELECT ADDRESS1, ADDRESS2, CITY, ZIP FROM CUSTOMER_ADDRESSES WHERE CUSTOMER_ID = :B1 AND "
               "KIND = 'S'",
       .module = "SHIPPING.EXE",
       .pace = Mornings,
       .share = 40,
       .gets = 5,
       .misses = 30,
       .plan = RangeScan,
       .objects = "CUSTOMER_ADDRESSES CUSTOMER_ADDRESSES_IX"},
  };
}

}  // namespace kestrelix::demo
