#define QT_STATICPLUGIN  // before the toolkit's headers

#include <QAccessibleBridge>
#include <QtPlugin>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Announcements.h"
#include "app/Announcer.h"
#include "table/frmScorePad.h"
#include "tests/app/Run.h"
#include "tests/support/Rows.h"

namespace blunko::test {

/// Hears what goes to a screen reader.
struct Reader : QAccessibleBridge {
  static inline QString* Heard = nullptr;

  void setRootObject(QAccessibleInterface*) override {}
  void notifyAccessibilityUpdate(QAccessibleEvent* Event) override {
    if (Heard == nullptr) return;
    QDebug(Heard).noquote() << Event->type() << Event->accessibleInterface()->text(QAccessible::Name) << '|';
  }
  static std::string Of(const std::function<void()>& Do) {
    QString All;
    Heard = &All;
    Do();
    Heard = nullptr;
    return All.remove("QAccessible::").toStdString();
  }
};

class Readers : public QAccessibleBridgePlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QAccessibleBridgeFactoryInterface_iid FILE "reader.json")
  QAccessibleBridge* create(const QString&) override {
    static auto* const Only = new Reader;  // the toolkit never deletes it
    return Only;
  }
};

/// Hears what the queue lets out of the events of a game, by a clock that goes as told.
struct Listener : Table {
  AnnouncementQueue Queue;
  AnnouncementQueue::Time Now{};
  Lines Heard;

  Listener() {
    Others.OnEvent = [this](GameEvent Event) {
      Queue.Add(Announcement(Event, m, t), Now);
      Listen();
    };
  }
  void Listen() {
    while (const auto Line = Queue.Take(Now)) Heard.push_back((Line->Interrupts ? "!" : "") + Line->Text);
  }
  /// What is heard of moves ("wait 1000" and "bank 500" among them, and letters of keys), joined by " | ".
  std::string After(const std::string& Moves) {
    const int Number = std::atoi(Moves.c_str() + 5);
    if (Moves.starts_with("bank")) {
      Bank(Number);
    } else if (Moves.starts_with("wait")) {
      for (const auto End = Now + AnnouncementQueue::Time(Number); Now < End; Listen()) ++Now;
    } else if (Moves.size() == 1) {
      game.Form_KeyUp(Moves[0], 0);
    } else {
      Play(Moves);
    }
    std::string All;
    for (const std::string& Line : std::exchange(Heard, {})) All += (All.empty() ? "" : " | ") + Line;
    return All;
  }
};

TEST(Announcements, AGameAsAListenerHearsIt) {
  Listener Seats;
  EXPECT_EQ(Seats.After("S"), "No game is on.");
  Seats.Begin({"Ann", "Normal", "Simple"});
  for (const auto& [Moves, Heard, Rule] : RowsOf("app/announcements.txt"))
    EXPECT_EQ(Seats.After(Moves), Heard) << Moves << Rule;
  EXPECT_EQ(Seats.m.Winner, 1);
}

TEST_F(TheProgram, AReaderIsToldOfTheTableWhatACommandHasChanged) {
  Start();
  Begin(2, 0);
  frmMain& Form = *Run->Form;
  Roll(30, {1, 1, 2, 3, 5, 5});
  TableNews News;
  News.Tell(Form);
  auto* Die = QAccessible::queryAccessibleInterface(Form.Picture1[1])->actionInterface();
  Die->doAction(Die->actionNames().last());
  QCoreApplication::processEvents();
  EXPECT_EQ(
      Reader::Of([&] { News.Tell(Form); }),
      "ObjectHide Die 2: one, scores | ObjectShow Tray 2: one, can be taken back | NameChanged Tray 2: one, can be "
      "taken back | StateChanged Tray 2: one, can be taken back | NameChanged 200 | ");
  auto* Voice = Form.findChild<Announcer*>();
  for (const char* Text : {"one", "two"}) Voice->Tell({.Text = Text});
  const char* const Said = QT_VERSION < QT_VERSION_CHECK(6, 8, 0) ? "ObjectShow two" : "Announcement";
  EXPECT_THAT(Reader::Of([] { QTest::qWait(200); }), testing::HasSubstr(Said));
  const auto Filter = QAccessible::installUpdateHandler(nullptr);
  QWidget Line(Voice), Dialog, Hidden;
  Dialog.show();
  auto& Pad = *Form.findChild<frmScorePad*>();
  using enum QAccessible::Event;
  const std::tuple<QObject*, QAccessible::Event, bool> Rows[] = {
      {&Line, ObjectShow, true},    {&Line, NameChanged, false},        {&Form, Focus, false},
      {Form.cmdRoll, Focus, true},  {Form.cmdRoll, NameChanged, false}, {Pad.Rows()[0], NameChanged, false},
      {&Dialog, NameChanged, true}, {&Hidden, NameChanged, false}};
  for (const auto& [Object, Kind, Passes] : Rows) {
    QAccessibleEvent Event(Object, Kind);
    EXPECT_EQ(Reader::Of([&] { Filter(&Event); }).empty(), !Passes) << Kind;
  }
}

}  // namespace blunko::test

Q_IMPORT_PLUGIN(Readers)
#include "AnnouncementsTest.moc"
