#include "app/frmCustomizeSounds.h"

#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "table/KeyCodes.h"
#include "widgets/Fonts.h"

namespace blunko {

namespace {

constexpr int ListWidth = 240;  // px
const QColor ButtonColour(137, 189, 255);

}  // namespace

frmCustomizeSounds::frmCustomizeSounds(Game& Table, GameSettings& Options, QWidget* Owner)
    : PlacedDialog(Owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                              Qt::WindowCloseButtonHint),
      game(Table),
      settings(Options) {
  setObjectName(QStringLiteral("frmCustomizeSounds"));
  setWindowTitle(QStringLiteral("Customize Sounds"));
  setFont(FontOf(Typeface::Verdana, 8.25));
  PickFile = [this](const QString& Title) {
    const QString Path = QFileDialog::getOpenFileName(this, Title, QFile::decodeName(ChosenFile().c_str()),
                                                      QStringLiteral("Wav Files (*.wav)"));
    return Path.isEmpty() ? NothingPicked : Path;
  };
  Build();
  Form_Load();
}

void frmCustomizeSounds::Build() {
  lstEvents = new QListWidget(this);
  const int RowHeight = fontMetrics().height() + 6;
  for (const SoundEvent& Made : SoundEvents) {
    auto* Row = new QListWidgetItem(QString::fromLatin1(Made.Caption), lstEvents);
    Row->setSizeHint(QSize(0, RowHeight));
  }
  lstEvents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstEvents->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const int Border = 2 * lstEvents->frameWidth();
  lstEvents->setFixedHeight(RowHeight * lstEvents->count() + Border);
  lstEvents->setMinimumWidth(ListWidth);
  txtSound = new QLineEdit(this);
  txtSound->setReadOnly(true);
  cmdBrowse = new ButtonPlus(QStringLiteral("Browse..."), this);
  cmdTest = new ButtonPlus(QStringLiteral("Test"), this);
  cmdOK = new ButtonPlus(QStringLiteral("OK"), this);
  cmdCancel = new ButtonPlus(QStringLiteral("Cancel"), this);
  cmdOK->setDefault(true);

  const auto Caption = [this](const QString& Text, QWidget* Buddy) {
    auto* Made = new QLabel(Text, this);
    Made->setBuddy(Buddy);
    return Made;
  };
  auto* Hint = new QLabel(QStringLiteral("[Hit Backspace to restore defaults]"), this);
  Hint->setAlignment(Qt::AlignCenter);
  auto* Buttons = new QVBoxLayout;
  Buttons->setSpacing(4);
  Buttons->addWidget(cmdBrowse);
  Buttons->addWidget(cmdTest);
  Buttons->addStretch(1);
  Buttons->addWidget(cmdOK);
  Buttons->addWidget(cmdCancel);
  auto* Places = new QGridLayout(this);
  Places->setContentsMargins(12, 10, 12, 10);
  Places->setHorizontalSpacing(12);
  Places->setVerticalSpacing(4);
  Places->addWidget(Caption(QStringLiteral("Event:"), lstEvents), 0, 0);
  Places->addWidget(lstEvents, 1, 0);
  Places->setRowMinimumHeight(2, 4);
  Places->addWidget(Caption(QStringLiteral("Sound:"), txtSound), 3, 0);
  Places->addWidget(txtSound, 4, 0);
  Places->addLayout(Buttons, 1, 1, 4, 1);
  Places->setRowMinimumHeight(5, 4);
  Places->addWidget(Hint, 6, 0, 1, 2);
  Places->setSizeConstraint(QLayout::SetFixedSize);

  const std::pair<QWidget*, const char*> Names[] = {{lstEvents, "lstEvents"}, {txtSound, "txtSound"},
                                                    {cmdBrowse, "cmdBrowse"}, {cmdTest, "cmdTest"},
                                                    {cmdOK, "cmdOK"},         {cmdCancel, "cmdCancel"}};
  for (const auto& [Widget, Name] : Names) {
    Widget->setObjectName(QLatin1String(Name));
    Widget->installEventFilter(this);
  }
  connect(lstEvents, &QListWidget::currentRowChanged, this, &frmCustomizeSounds::lstEvents_Click);
  connect(lstEvents, &QListWidget::itemDoubleClicked, this, &frmCustomizeSounds::cmdBrowse_Click);
  connect(cmdBrowse, &QPushButton::clicked, this, &frmCustomizeSounds::cmdBrowse_Click);
  connect(cmdTest, &QPushButton::clicked, this, &frmCustomizeSounds::cmdTest_Click);
  connect(cmdOK, &QPushButton::clicked, this, &frmCustomizeSounds::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmCustomizeSounds::Form_Load() {
  for (ButtonPlus* Button : {cmdBrowse, cmdTest, cmdOK, cmdCancel}) Button->setBackColor(ButtonColour);
  for (std::size_t i = 0; i < SoundEvents.size(); ++i) EventFile[i] = settings.GetSound(SoundEvents[i].Name);
  lstEvents->setCurrentRow(0);
  lstEvents_Click();
  FixButtonColours(*this);
}

std::string& frmCustomizeSounds::ChosenFile() { return EventFile[static_cast<std::size_t>(lstEvents->currentRow())]; }

void frmCustomizeSounds::lstEvents_Click() {
  txtSound->setText(FileNameOnly(QFile::decodeName(QByteArray::fromStdString(ChosenFile()))));
  txtSound->setCursorPosition(0);
}

void frmCustomizeSounds::cmdBrowse_Click() {
  const QString Title = QStringLiteral("Select \"%1\" sound").arg(lstEvents->currentItem()->text());
  game.m.FormMessage = QFile::encodeName(PickFile(Title)).toStdString();
  if (game.m.FormMessage == QFile::encodeName(NothingPicked).toStdString()) return;
  ChosenFile() = game.m.FormMessage;
  lstEvents_Click();
}

void frmCustomizeSounds::cmdTest_Click() { game.desktop.PlaySoundFile(ChosenFile(), true); }

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
  for (std::size_t i = 0; i < SoundEvents.size(); ++i) {
    const QByteArray Name = QFile::encodeName(GameSettings::DefaultSoundFile(SoundEvents[i].Name));
    EventFile[i] = game.m.TempFolder + Name.toStdString();
  }
  lstEvents_Click();
  game.desktop.MessageBox("Original Sounds Restored.");
}

}  // namespace blunko
