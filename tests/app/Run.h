#pragma once

#include <QAccessible>
#include <QApplication>
#include <QBitmap>
#include <QDesktopServices>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <deque>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <string>
#include <vector>

#include "Links.h"
#include "app/Accessibility.h"
#include "app/Application.h"
#include "storage/FileAccess.h"
#include "tests/support/Place.h"
#include "tests/support/Table.h"
#include "widgets/Boxes.h"
#include "widgets/Materials.h"
#include "widgets/Pictures.h"

namespace blunko::test {

using Lines = std::vector<std::string>;

/// The folders of a program that lives in a place of the test's own.
inline Folders FoldersIn(const Place& At) { return {At.Path(), "game", At.Path(), At.Mkdir("temp", 0700) + '/'}; }

inline void Click(QWidget* Control) { QTest::mouseClick(Control, Qt::LeftButton); }

/// What a dialog is handed: a recorded desktop, and files in a folder of their own.
struct Desk : Table {
  Place Folder;
  Folders Where = FoldersIn(Folder);
  IniInfo Info{Where.InfoPath()};
  GameSettings Settings{Where, Info};
  QWidget Main;

  Desk() { InstallAccessibility(); }
};

/// Holds what a window looks like, at half its size, against the picture kept.
inline void ExpectSeenAs(const QString& Kept, QWidget& Form) {
  const QImage Now =
      Form.grab().scaled(Form.size() / 2, {}, Qt::SmoothTransformation).toImage().convertToFormat(QImage::Format_RGB32);
  if (qEnvironmentVariableIsSet("TBK_KEEP_FORMS")) Now.save(Kept);
  const QImage Then = QImage(Kept).convertToFormat(Now.format());
  EXPECT_TRUE(Now == Then) << Kept.toStdString();
}

/// Holds what a window says it consists of, a line a part, against what tests/app/forms keeps. A change there is looked
/// at as one of the source is; TBK_KEEP_FORMS=1 keeps what is found.
inline void ExpectAsKept(QWidget& Form, const QString& State = {}) {
  QStringList Found{Form.windowTitle(), QStringLiteral("%1 x %2").arg(Form.width()).arg(Form.height())};
  for (QWidget* Part : Form.findChildren<QWidget*>(QRegularExpression("^(?!qt_).+"))) {
    if (!Part->isVisible() || Part->window() != &Form) continue;
    const QAccessibleInterface& Told = *QAccessible::queryAccessibleInterface(Part);
    const bool ToolkitPaints = Part->metaObject()->className()[0] == 'Q';  // ours have colours of their own
    QDebug(&Found.emplace_back()).noquote()
        << Part->objectName() << Told.role() << '"' + Told.text(QAccessible::Name) + '"'
        << Told.text(QAccessible::Description) << (Told.state().invisible ? "unseen" : "")
        << (Told.state().disabled ? "off" : "") << (Told.state().checked ? "checked" : "")
        << (Part == Form.focusWidget() ? "focus" : "")
        << (Part->cursor().shape() == Qt::PointingHandCursor ? "hand" : "")
        << QRect(Part->mapTo(&Form, QPoint()), Part->size()) << Part->font().key().section(',', 2, 5)
        << (ToolkitPaints ? Part->palette().color(Part->foregroundRole()).name() : QString());
  }
  for (QString& Line : Found) Line = Line.simplified();
  QString All = Found.join('\n') + '\n';
  for (const QString& Set : {WebSite, SupportMail}) All.replace(Set, QStringLiteral("(set by the build)"));
  const std::string Text = All.toStdString();
  QString Kept = QStringLiteral(TBK_TEST_FILES "/app/forms/%1%2.txt").arg(Form.objectName(), State);
  if (qEnvironmentVariableIsSet("TBK_KEEP_FORMS")) ReplaceFile(Kept, Text.c_str());
  std::string Expected = ReadWholeFile(Kept).value_or("").toStdString(), Got = Text;
  if (QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)) {  // later toolkits give a radio button another size
    for (std::string* Each : {&Expected, &Got}) {
      *Each = std::regex_replace(*Each, std::regex("QRect\\(.*?\\)|\\d+ x \\d+"), "");
    }
  }
  EXPECT_EQ(Expected, Got) << Kept.toStdString();
  const bool RoundsAlike = QT_VERSION < QT_VERSION_CHECK(6, 5, 0) && QSysInfo::buildCpuArchitecture() == "x86_64";
  if (RoundsAlike && Form.devicePixelRatioF() == 2) {
    ExpectSeenAs(Kept.replace(".txt", ".png"), Form);
  }
}

/// Every text of a window has the room that it asks for, every stop of the Tab key shows the focus, and
/// all is as it was.
inline void ExpectUsable(QWidget& Form, const QString& State = {}) {
  Form.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Form, 5000));
  QWidget* const Had = Form.focusWidget();
  ExpectAsKept(Form, State);
  for (QWidget* Part : Form.findChildren<QWidget*>(QRegularExpression("^(?!qt_).+"))) {
    if (!Part->isVisible()) continue;
    SCOPED_TRACE(Part->objectName().toStdString());
    if ((Part->focusPolicy() & Qt::TabFocus) != 0 && Part->isEnabled() && Part->focusProxy() == nullptr) {
      Part->setFocus();
      const QRect Around(Part->mapTo(&Form, QPoint(-4, -4)), Part->size() + QSize(8, 8));
      int Gilded = 0;
      const QRegion Ring(Form.grab(Around).createMaskFromColor(Gilt, Qt::MaskOutColor));
      for (const QRect& Piece : Ring) Gilded += Piece.width() * Piece.height();
      EXPECT_GE(Gilded, Part->width() * Form.devicePixelRatio()) << "its ring";
    }
    if (qobject_cast<QLabel*>(Part) == nullptr && qobject_cast<QAbstractButton*>(Part) == nullptr) continue;
    const QSize Needed =
        Part->hasHeightForWidth() ? QSize(0, Part->heightForWidth(Part->width())) : Part->minimumSizeHint();
    EXPECT_EQ(Part->size().expandedTo(Needed), Part->size());
  }
  if (Had != nullptr) Had->setFocus();
}

/// Deals with the modal windows as they come up, one step each. An unexpected one is closed and fails the test, and so
/// does a wait beyond the limit, which ends the program. What would be opened in the system's programs is noted.
class Answers : public QObject {
  Q_OBJECT

 public:
  Answers() {
    InstallAccessibility();
    qApp->installEventFilter(this);
    for (const char* Scheme : {"http", "https", "mailto"}) QDesktopServices::setUrlHandler(Scheme, this, "Open");
    QTimer::singleShot(60000, this, [this] {
      ADD_FAILURE() << "the time is up with " << steps.size() << " windows to come";
      abort();  // computers among themselves would play on
    });
  }
  ~Answers() override { EXPECT_EQ(steps.size(), 0U) << "windows didn't come up"; }

  /// What has come up: a title, and for a box its icon, if any, ": " and its text.
  Lines Seen;
  /// The addresses that were to be opened.
  Lines Opened;

  /// The next window is of this class and dealt with so.
  template <typename Dialog>
  void Expect(std::function<void(Dialog&)> Do) {
    steps.push_back([Do](QWidget* Shown) {
      auto* Expected = qobject_cast<Dialog*>(Shown);
      EXPECT_NE(Expected, nullptr) << "another window: " << Shown->metaObject()->className();
      Expected != nullptr ? Do(*Expected) : static_cast<void>(Shown->close());
    });
  }
  /// The next window is left by this button.
  template <typename Dialog>
  void Press(ButtonPlus* Dialog::*Button) {
    Expect<Dialog>([Button](Dialog& Shown) { Click(Shown.*Button); });
  }
  bool eventFilter(QObject* Object, QEvent* Event) override {
    auto* Shown = Event->type() == QEvent::Show ? qobject_cast<QWidget*>(Object) : nullptr;
    if (Shown != nullptr && Shown->isModal()) {
      const auto* Box = qobject_cast<GameBox*>(Shown);
      const auto* Icon = Shown->findChild<SvgBox*>("picSign");
      const QString Text = Box != nullptr ? QStringLiteral(": ") + Box->lblText->text() : QString();
      Seen.push_back(
          (Shown->windowTitle() + (Icon != nullptr ? " " + Icon->accessibleName() : QString()) + Text).toStdString());
      QTimer::singleShot(0, Shown, [this, Shown] { Next(Shown); });
    }
    return false;
  }

 public slots:
  void Open(const QUrl& Address) { Opened.push_back(Address.toString().toStdString()); }

 private:
  void Next(QWidget* Shown) {
    EXPECT_NE(steps.size(), 0U) << "unexpected window: " << Seen.back();
    if (steps.empty()) return static_cast<void>(Shown->close());
    const auto Do = std::exchange(steps.front(), {});
    steps.pop_front();
    Do(Shown);
  }

  std::deque<std::function<void(QWidget*)>> steps;
};

/// The whole program in a folder of its own, with scripted dice and instant waits.
class TheProgram : public testing::Test {
 protected:
  Place Folder;
  ScriptedDice* Dice = nullptr;
  std::unique_ptr<Application> Run;
  Answers Next;

  ~TheProgram() override { Leave(); }
  /// A program that has quit doesn't keep the dialogs of the next one from waiting.
  void Leave() {
    Run.reset();
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
  }
  void Create() {
    Leave();
    auto Numbers = std::make_unique<ScriptedDice>();
    Dice = Numbers.get();
    Run = std::make_unique<Application>(FoldersIn(Folder), std::move(Numbers));
    Run->Screen.WaitFactor = 0;
  }
  /// A later start, with nothing asked.
  void Start(const QByteArray& Keys = "ShowWelcomeMessage=0\n") {
    Folder.Put("game.ini", "[Info]\nScanned=True\nComputerFast=2\n" + Keys);
    QFile::link(QStringLiteral(TBK_ASSETS "/help"), Folder.Path("help"));
    Create();
    Dice->Faces = {2};
    ASSERT_TRUE(Run->Main());
  }
  /// With a computer in every seat whose bit is set.
  void Begin(int Seats, int Computers, const char* Name = "Somebody") {
    GameSetup Setup;
    Setup.NumPlayers = static_cast<std::uint8_t>(Seats);
    for (int i = 0; i < MaxSeats; ++i) Setup.Seats[i] = {Name, (Computers >> i & 1) != 0, Simple};
    Run->Form->Handle([&] { Run->Table.FreshGame(Setup); });
  }
  /// And takes the first die.
  void Roll(std::size_t Tumbling, std::initializer_list<int> Faces) {
    Dice->Faces.assign(Tumbling, 6);
    Dice->Faces.insert(Dice->Faces.end(), Faces);
    Click(Run->Form->cmdRoll);
    QTest::keyClick(Run->Form.get(), Qt::Key_1);
  }
};

}  // namespace blunko::test
