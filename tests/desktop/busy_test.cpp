// What shows while an action runs: the waiting pointer and, later, the bar.
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include "desktop/gui_fixture.h"

namespace kestrelix {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::GuiTest;

constexpr int kPairs = 719;

/// A series whose pairs take as long as the test has it.
class Busy : public GuiTest {
 protected:
  Busy() {
    services.sections = slowCatalogue();
    atPair() = [](int) {};
    progressClock = [this] { return now; };
    logOn();
    click("ListSection", 1);
    click("ListSnapId", 0);
  }
  ~Busy() override {
    atPair() = [](int) {};
  }

  static std::function<void(int)>& atPair() {
    static std::function<void(int)> hook;
    return hook;
  }
  class SlowReader : public testing_support::RecordingReader {
   public:
    ReportTable col(const ReportSource& source, const Section& section, const ColRequest& request) override {
      if (section.text != "Slow") return RecordingReader::col(source, section, request);
      for (int pair = 1; pair <= kPairs; ++pair) {
        source.progress.step(pair, kPairs);
        atPair()(pair);
      }
      return testing_support::tableOf("Slow Col", 3);
    }
  };
  SectionReader& reads() override { return slow; }
  static SectionList slowCatalogue() {
    using testing_support::someViews;
    static const std::vector<Section> sections{
        {.text = "Snapshot", .code = 0, .versions = kAllVersions, .col = byRow(), .views = someViews()},
        {.text = "Slow", .code = 200, .versions = kAllVersions, .col = byCells({1}), .views = someViews()}};
    return sections;
  }
  static QWidget* bar() { return find("PairBar"); }
  /// What the screen shows in the bar's place, at a part of its width; the text keeps to the middle.
  static QColor onScreen(double part) {
    const QRect at(bar()->mapTo(window("FormMain"), QPoint(0, 0)), bar()->size());
    const QImage picture =
        QGuiApplication::primaryScreen()->grabWindow(window("FormMain")->winId()).toImage();
    return picture.pixelColor(at.left() + static_cast<int>(part * at.width()), at.top() + 4);
  }
  static bool waits() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
  }

  QtProgress::Time now{};
  SlowReader slow;
};

TEST_F(Busy, thePointerWaitsWhileAnActionRunsAndNotAfterIt) {
  EXPECT_FALSE(waits());
  int waiting = 0;
  atPair() = [&](int) { waiting += waits(); };
  doubleClickCell("MSFlexGridMain", 0, 0);
  EXPECT_EQ(waiting, kPairs);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Busy, theBarShowsFrom300MillisecondsOnUntilTheEnd) {
  std::vector<int> shownAt;
  atPair() = [&](int pair) {
    if (bar()->isVisible()) shownAt.push_back(pair);
    now += 100ms;
  };
  doubleClickCell("MSFlexGridMain", 0, 0);
  ASSERT_FALSE(shownAt.empty());
  EXPECT_EQ(shownAt.front(), 4) << "pairs 1, 2 and 3 began at 0, 100 and 200 ms";
  EXPECT_EQ(shownAt.back(), kPairs);
  EXPECT_FALSE(bar()->isVisible());
  EXPECT_EQ(cell("MSFlexGridMain", 0, 0), "Slow Col 1,1");
}

TEST_F(Busy, aShortSeriesShowsNoBar) {
  bool shown = false;
  atPair() = [&](int) {
    shown = shown || bar()->isVisible();
    now += 400us;  // 719 of them are 288 ms
  };
  doubleClickCell("MSFlexGridMain", 0, 0);
  EXPECT_FALSE(shown);
}

TEST_F(Busy, theBarStandsOnTheScreenWithoutTheEventLoop) {
  QColor left;
  QColor middleBefore;
  QColor middleAfter;
  QRect place;
  QColor rest;
  atPair() = [&](int pair) {
    now += 100ms;
    if (pair == 180) left = onScreen(0.2);  // a quarter is filled
    if (pair == 180) rest = onScreen(0.9);
    if (pair == 300) middleBefore = onScreen(0.42);
    if (pair == 310) middleAfter = onScreen(0.42);
    place = bar()->geometry();
  };
  doubleClickCell("MSFlexGridMain", 0, 0);
  EXPECT_EQ(rest, QColor(Qt::white));
  EXPECT_NE(left, rest);
  EXPECT_EQ(middleBefore, rest) << "300 of 719 are 0.417";
  EXPECT_EQ(middleAfter, left) << "310 of 719 are 0.431";
  const QRect grid = find("MSFlexGridMain")->geometry();
  EXPECT_EQ(place.bottomRight(), grid.bottomRight());
  EXPECT_EQ(place.width(), grid.width());
  EXPECT_LT(place.height(), 20);
}

TEST_F(Busy, fastPairsAreNotEachPainted) {
  struct Counter : QObject {
    int paintings = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) ++paintings;
      return false;
    }
  } counter;
  bar()->installEventFilter(&counter);
  atPair() = [&](int) { now += 2ms; };  // 1438 ms: 1138 of them with the bar
  doubleClickCell("MSFlexGridMain", 0, 0);
  bar()->removeEventFilter(&counter);
  EXPECT_GE(counter.paintings, 25);
  EXPECT_LE(counter.paintings, 30) << "one in 40 ms";
}

TEST_F(Busy, nothingElseReactsUntilTheActionIsOver) {
  std::vector<std::string> order;
  atPair() = [&](int pair) {
    now += 100ms;
    if (pair == 10) {
      QMetaObject::invokeMethod(
          qApp, [&] { order.push_back("event"); }, Qt::QueuedConnection);
      const QPointF at = centre("ListSnapId", 2, 0);
      QWidget* list = view("ListSnapId")->viewport();
      for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        QCoreApplication::postEvent(
            list, new QMouseEvent(type, at, list->mapToGlobal(at), Qt::LeftButton,
                                  type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {}));
    }
    if (pair == kPairs) order.push_back(testing_support::rendered().back());
  };
  doubleClickCell("MSFlexGridMain", 0, 0);
  EXPECT_THAT(order, ElementsAre("All Slow 10 pair 0", "event"));
  EXPECT_EQ(testing_support::rendered().back(), "All Slow 10 pair 2") << "the click counts afterwards";
}

TEST_F(Busy, aBoxWithinAnActionHasThePlainPointer) {
  QtMessageBoxes real;
  Qt::CursorShape inBox = Qt::BlankCursor;
  Qt::CursorShape after = Qt::BlankCursor;
  atPair() = [&](int pair) {
    if (pair > 1) return;
    QTimer::singleShot(0, [&] {
      inBox = QGuiApplication::overrideCursor()->shape();
      qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->accept();
    });
    real.show(BoxIcon::Critical, "failed", {});
    after = QGuiApplication::overrideCursor()->shape();
  };
  doubleClickCell("MSFlexGridMain", 0, 0);
  EXPECT_EQ(inBox, Qt::ArrowCursor);
  EXPECT_EQ(after, Qt::WaitCursor);
}

TEST_F(Busy, theWaitingPointerEndsWithTheWindow) {
  server.answer(testing_support::kRangeOfSnapshots).fails = true;
  press("START");
  EXPECT_EQ(window("FormMain"), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace kestrelix
