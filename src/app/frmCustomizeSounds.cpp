#include "app/frmCustomizeSounds.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QStandardPaths>

#include "table/KeyEvents.h"
#include "widgets/FormBuilder.h"

namespace blunko {

constexpr int ListWidth = 240;  // px
const std::string NothingPicked = "¤¤¤";
const QColor ButtonColour(137, 189, 255);

frmCustomizeSounds::frmCustomizeSounds(std::string& FormMessage, GameSettings& Options, Desktop& Screen, QWidget* Owner)
    : PlacedDialog(Owner, "frmCustomizeSounds", "Customize Sounds", Cloth::Pearl,
                   Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                       Qt::WindowCloseButtonHint),
      message(FormMessage),
      settings(Options),
      desktop(Screen) {
  setFont(FontOf(Typeface::Verdana, 11));
  BuildControls();
  LayOut();
  Form_Load();
}

void frmCustomizeSounds::BuildControls() {
  lstEvents = Make<QListWidget>(this, "lstEvents");
  const int RowHeight = fontMetrics().height() + 6;
  for (const SoundEvent& Event : SoundEvents) {
    auto* Row = new QListWidgetItem(QString::fromLatin1(Event.Caption), lstEvents);
    Row->setSizeHint(QSize(0, RowHeight));
  }
  lstEvents->setFixedHeight(RowHeight * lstEvents->count() + 2 * lstEvents->frameWidth());
  lstEvents->setMinimumWidth(ListWidth);
  lstEvents->setAccessibleName("Event");
  txtSound = Make<QLineEdit>(this, "txtSound");
  txtSound->setReadOnly(true);
  txtSound->setAccessibleName("Sound");
  cmdBrowse = MakeButton(this, "cmdBrowse", "Browse...", &frmCustomizeSounds::cmdBrowse_Click);
  cmdTest = MakeButton(this, "cmdTest", "Test", &frmCustomizeSounds::cmdTest_Click);
  cmdOK = MakeButton(this, "cmdOK", "OK", &frmCustomizeSounds::cmdOK_Click);
  cmdCancel = MakeButton(this, "cmdCancel", "Cancel", &QDialog::reject);
  cmdOK->setDefault(true);
  const std::initializer_list<QWidget*> All{lstEvents, txtSound, cmdBrowse, cmdTest, cmdOK, cmdCancel};
  for (QWidget* Control : All) Control->installEventFilter(this);
  connect(lstEvents, &QListWidget::currentRowChanged, this, &frmCustomizeSounds::lstEvents_Click);
  connect(lstEvents, &QListWidget::itemDoubleClicked, this, &frmCustomizeSounds::cmdBrowse_Click);
}

void frmCustomizeSounds::LayOut() {
  const auto Left = Qt::AlignLeft | Qt::AlignVCenter;
  auto* Buttons = new QVBoxLayout;
  Buttons->setSpacing(4);
  for (ButtonPlus* Button : {cmdBrowse, cmdTest, cmdOK, cmdCancel}) {
    if (Button == cmdOK) Buttons->addStretch(1);
    Buttons->addWidget(Button);
  }
  auto* Places = new QGridLayout(this);
  Places->setContentsMargins(12, 10, 12, 10);
  Places->setHorizontalSpacing(12);
  Places->setVerticalSpacing(4);
  Places->addWidget(MakeText(this, "lblEvent", "Event:", font(), Left), 0, 0);
  Places->addWidget(lstEvents, 1, 0);
  Places->setRowMinimumHeight(2, 4);
  Places->addWidget(MakeText(this, "lblSound", "Sound:", font(), Left), 3, 0);
  Places->addWidget(txtSound, 4, 0);
  Places->addLayout(Buttons, 1, 1, 4, 1);
  Places->setRowMinimumHeight(5, 4);
  Places->addWidget(MakeText(this, "lblHint", "[Hit Backspace to restore defaults]", font()), 6, 0, 1, 2);
  Places->setSizeConstraint(QLayout::SetFixedSize);
}

void frmCustomizeSounds::Form_Load() {
  for (ButtonPlus* Button : {cmdBrowse, cmdTest, cmdOK, cmdCancel}) Button->setBackColor(ButtonColour);
  cmdOK->setHero();
  for (std::size_t i = 0; i < SoundEvents.size(); ++i) EventFile[i] = settings.GetSound(SoundEvents[i].Name);
  lstEvents->setCurrentRow(0);
  lstEvents_Click();
}

std::string& frmCustomizeSounds::ChosenFile() { return EventFile[lstEvents->currentRow()]; }

void frmCustomizeSounds::lstEvents_Click() {
  txtSound->setText(FileNameOnly(QFile::decodeName(QByteArray::fromStdString(ChosenFile()))));
  txtSound->setCursorPosition(0);
}

void frmCustomizeSounds::cmdBrowse_Click() {
  message = PickFile(QStringLiteral("Select \"%1\" sound").arg(lstEvents->currentItem()->text()));
  if (message == NothingPicked) return;
  ChosenFile() = message;
  lstEvents_Click();
}

/// Asks for a wave file: its path, or `NothingPicked`. It begins beside the event's own file, or where people keep
/// sounds while that is one of the game's.
std::string frmCustomizeSounds::PickFile(const QString& Title) {
  QString Begin = QFile::decodeName(QByteArray::fromStdString(ChosenFile()));
  if (ChosenFile() == settings.DefaultSound(SoundEvents[lstEvents->currentRow()].Name)) {
    Begin = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    if (!QFileInfo(Begin).isDir()) Begin = QDir::homePath();
  }
  const QString Path =
      QFileDialog::getOpenFileName(this, Title, Begin, "Wav Files (*.wav)", nullptr, QFileDialog::ReadOnly);
  return Path.isEmpty() ? NothingPicked : QFile::encodeName(Path).toStdString();
}

void frmCustomizeSounds::cmdTest_Click() { desktop.PlaySoundFile(ChosenFile(), true); }

void frmCustomizeSounds::cmdOK_Click() {
  const WrittenTogether Save = settings.WriteTogether();
  for (std::size_t i = 0; i < SoundEvents.size(); ++i) settings.SetSound(SoundEvents[i].Name, EventFile[i]);
  accept();
}

/// The form sees keys before its controls do: a line of text, for one, would keep them to itself.
bool frmCustomizeSounds::eventFilter(QObject* Watched, QEvent* Event) {
  if (Event->type() == QEvent::KeyRelease) {
    const auto& Key = static_cast<const QKeyEvent&>(*Event);
    if (!Key.isAutoRepeat()) Form_KeyUp(KeyCodeOf(Key));
  }
  return QDialog::eventFilter(Watched, Event);
}

void frmCustomizeSounds::Form_KeyUp(std::int16_t KeyCode) {
  if (KeyCode != Backspace) return;
  for (std::size_t i = 0; i < SoundEvents.size(); ++i) EventFile[i] = settings.DefaultSound(SoundEvents[i].Name);
  lstEvents_Click();
  desktop.MessageBox("Original Sounds Restored.");
}

}  // namespace blunko
