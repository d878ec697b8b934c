#include "app/Application.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QScreen>
#include <QSessionManager>
#include <QTime>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <future>

#include "Links.h"
#include "app/Announcements.h"
#include "app/Announcer.h"
#include "app/StartQuestions.h"
#include "app/frmAbout.h"
#include "app/frmCongrats.h"
#include "app/frmCustomizeSounds.h"
#include "app/frmHighRollers.h"
#include "app/frmViewHRListYN.h"
#include "app/frmWelcome.h"
#include "sound/SoundFiles.h"
#include "table/DiceSets.h"
#include "widgets/Boxes.h"

namespace blunko {

namespace {

constexpr int LaterStartsPerVersionCheck = 5;

/// From pictures, not from the drawing, and none larger than windows show: that would cost a tenth of the start.
QList<QImage> IconPictures() {
  QList<QImage> All;
  for (const int Side : {16, 24, 32, 48, 64}) All.append(QImage(QStringLiteral(":/icons/%1.png").arg(Side)));
  return All;
}

}  // namespace

Application::Application(const Folders& Where, const IniInfo& Info, std::unique_ptr<NumberSource> Dice)
    : folders(Where),
      InfoFile(Info),
      Settings(Where, InfoFile),
      Numbers(std::move(Dice)),
      Uniform(0),
      Table(State, Controls, Settings.Options(), Screen, *this, *Numbers),
      Players(Table, Uniform),
      Util(VersionAddress),
      Rollers(State, InfoFile, Util, *this) {
  Table.OfferScores(Rollers);
}

Application::~Application() = default;

bool Application::Main() {
  InstallAccessibility();
  qApp->installEventFilter(this);
  auto Pictures = std::async(IconPictures);  // while the window is built
  const auto ShowIcon = [&Pictures] {
    QIcon Icon;
    for (const QImage& Picture : Pictures.get()) Icon.addPixmap(QPixmap::fromImage(Picture));
    QApplication::setWindowIcon(Icon);
  };
  State.HelpFile = folders.Shipped(QStringLiteral("help")).toStdString();
  State.PlayToScore = static_cast<std::int16_t>(Settings.ReadPlayToScore());
  State.BreakInScore = static_cast<std::int16_t>(Settings.ReadBreakInScore());
  Util.UtilSetFolder(QFileInfo(folders.ListsPath()).path());
  const bool FirstStart = !Settings.Scanned;
  const bool Asks = FirstStart || Numbers->UtilRandom(LaterStartsPerVersionCheck) == 1;
  if (Asks) {
    ShowIcon();
    SurveyHardware(Settings, Screen, Util);
    if (!CheckForUpdate(Screen, Util)) return false;
  }
  Uniform = UniformGenerator(static_cast<std::uint64_t>(QTime::currentTime().msecsSinceStartOfDay() / 1000));
  State.TempFolder = folders.Temp.toStdString();
  ExtractSounds(folders.Temp);
  LoadForm();
  if (!Asks) ShowIcon();
  Form->show();
  return true;
}

/// Makes the table's window, dresses it as the settings say, and connects it with the rest.
void Application::LoadForm() {
  const Dress Clothes{
      .Trays = StartColour(Settings.DieColour), .TextColour = Settings.TextColour(), .Background = Settings.Background};
  Form = std::make_unique<frmMain>(Table, Clothes);
  speaker = new Announcer(Form.get());
  Form->ShowControls();
  CentreFrame(*Form);
  Rollers.LoadHighRollers();

  // The end of the session can be stopped only when it is asked for; later the program is told to end, see below.
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& Session) {
    if (Session.allowsInteraction()) Table.MayEnd() ? Session.release() : Session.cancel();
  });
  const auto On = [this](auto Signal, auto Run) { connect(Form.get(), Signal, this, Run); };
  On(&frmMain::firstShown, [this] { Form_Activate(); });
  On(&frmMain::handled, [this] { news.Tell(*Form); });
  On(&frmMain::minimised, [this] { Form_Resize(); });
  On(&frmMain::scorePadAsked, [this] {
    if (State.ScorePadShown) ScorePad().showNormal();
  });
  On(&frmMain::highRollersAsked, [this] { ViewLists(); });
  On(&frmMain::howToPlayAsked, [this] { ShowHelpTopic(QStringLiteral("PlayingBlunko.htm")); });
  On(&frmMain::helpAsked, [this] { ShowHelpTopic(QStringLiteral("Overview.htm")); });
  On(&frmMain::aboutAsked, [this] { frmAbout(folders, Settings, Screen, Form.get()).exec(); });
  Screen.ShowOn(*Form);
}

bool Application::eventFilter(QObject* Receiver, QEvent* Event) {
  if (Event->type() == QEvent::PlatformSurface && !PlacesWindows()) {
    if (auto* Window = qobject_cast<QWindow*>(Receiver)) LetGrow(*Window);
  }
  if (Form == nullptr || Event->type() != QEvent::Quit || !Event->spontaneous()) return false;
  Table.End();
  return true;
}

/// The table has come up. It is put right where the manager hadn't told the frame, and a newcomer is greeted.
void Application::Form_Activate() {
  CentreFrame(*Form);
  if (!Settings.ShowWelcome || !State.FirstActivate) return;
  State.FirstActivate = false;
  frmWelcome Welcome(InfoFile, Screen, Form.get());
  connect(&Welcome, &frmWelcome::helpAsked, &Welcome, [this](const QString& Topic) { ShowHelpTopic(Topic); });
  Welcome.exec();
}

void Application::ShowHelpTopic(const QString& Topic) {
  if (help == nullptr) {
    help = std::make_unique<HelpWindow>(QString::fromStdString(State.HelpFile), Form.get());
    connect(help.get(), &HelpWindow::told, speaker, [this](const QString& Text) { speaker->Answer(Text); });
  }
  help->ShowTopic(Topic);
}

/// The score pad leaves the screen with the table and comes back to where it stood.
void Application::Form_Resize() {
  if (State.ResizeBlocked || !State.ScorePadShown) return;
  frmScorePad& Pad = ScorePad();
  if (Form->isMinimized()) {
    const QPoint Corner = Pad.geometry().topLeft();
    State.ScorePadLeft = static_cast<std::int16_t>(Corner.x());
    State.ScorePadTop = static_cast<std::int16_t>(Corner.y());
    Pad.hide();
  } else {
    PlaceInside(Pad, {State.ScorePadLeft, State.ScorePadTop});
    Pad.showNormal();  // the window manager has minimised it too, and would take the table along once more
  }
}

frmScorePad& Application::ScorePad() {
  if (scorePad == nullptr) scorePad = new frmScorePad(State, Form.get());
  return *scorePad;
}

OptionsPanel& Application::Options() {
  if (options == nullptr) {
    QStringList Pictures{folders.Shipped(QStringLiteral("Background"))};
    if (const QString Own = folders.OwnBackground(); !Own.isEmpty()) {
      QDir().mkpath(Own);  // for the player to find
      Pictures.prepend(Own);
    }
    options = new OptionsPanel(*Form, Table, Settings, Pictures);
    connect(options, &OptionsPanel::told, speaker, [this](const QString& Text) { speaker->Answer(Text); });
    connect(options, &OptionsPanel::customizeSoundsAsked, options,
            [this] { frmCustomizeSounds(State.FormMessage, Settings, Screen, Form.get()).exec(); });
  }
  return *options;
}

frmNewGame& Application::NewGame() {
  if (newGame == nullptr) {
    newGame = new frmNewGame(Screen, InfoFile, Settings, Form.get());
    connect(newGame, &frmNewGame::told, speaker, [this](const QString& Text) { speaker->Answer(Text); });
  }
  return *newGame;
}

void Application::Announce(GameEvent Event) {
  if (QAccessible::isActive()) speaker->Tell(Announcement(Event, State, Controls));
}

void Application::UpdateActivePlayer() {
  if (scorePad != nullptr) scorePad->UpdateActivePlayer();
}

void Application::ShowScorePad() {
  frmScorePad& Pad = ScorePad();
  Pad.SetPosition();
  Pad.showNormal();  // KWin lets it be minimised
  Pad.raise();
}

void Application::FocusTable() { Form->activateWindow(); }

QString Application::AskName(const QString& Prompt, const QString& Title, const QString& Preset) {
  return AskText(Form.get(), Prompt, Title, Preset);
}

void Application::AskToView() { frmViewHRListYN(State.FormMessage, Screen, InfoFile, Form.get()).exec(); }

void Application::ViewLists() {
  if (!State.Quitting) frmHighRollers(Rollers, Screen, Form.get()).exec();
}

void Application::ShowCongrats() {
  const QString Winner = QString::fromStdString(State.PlayerName[State.Winner]);
  frmCongrats(Winner, State.FormMessage, Screen, Settings.Options(), *Form).exec();
}

void Application::ShowNewGame() {
  const auto Chosen = NewGame().ShowModal(State.FormMessage);
  if (State.Quitting) return;
  Chosen ? Table.FreshGame(*Chosen) : static_cast<void>(Controls.cmdRoll.Enabled = false);
}

void Application::ShowOptions() { Options().Open(); }

void Application::SettleOptions(bool Save) { Options().Settle(Save); }

void Application::HideOptions() { Options().Close(); }

void Application::UnloadOtherForms() {
  if (newGame != nullptr) newGame->Unload();
  if (scorePad != nullptr) scorePad->hide();
  if (help != nullptr) help->close();
}

void Application::ExitProgram() {
  Table.ARCmdCancelOptions_Click();  // a preview isn't kept
  UnloadOtherForms();
  Form->hide();
  QCoreApplication::exit();
}

void Application::Abort() { std::_Exit(EXIT_FAILURE); }

}  // namespace blunko
