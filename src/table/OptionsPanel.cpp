#include "table/OptionsPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QListWidget>
#include <QPainter>
#include <QRadioButton>
#include <QVBoxLayout>

#include "table/DiceSets.h"
#include "table/frmMain.h"
#include "widgets/Fonts.h"
#include "widgets/FormBuilder.h"
#include "widgets/Materials.h"

namespace blunko {

constexpr QSize PanelSize(159, 513);  // px; the table covers the rest of the panel
constexpr int StripWidth = 126;       // px, of the panel on the screen

constexpr int CommandHeight = 27;  // px

// A thin line all round, with the caption in it: the style's own group boxes take more height than the strip has.
const QString FrameStyle = QStringLiteral(
    "QGroupBox { border: 1px solid palette(highlight); border-radius: 4px; margin-top: 7px; }"
    "QGroupBox::title { subcontrol-origin: margin; left: 7px; padding: 0 3px; color: %1; }");

// Entry 6 shows a purer cyan than the text gets.
constexpr QRgb SwatchColours[] = {0x000000, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
const char* const ColourNames[] = {"Black", "Red", "Green", "Yellow", "Blue", "Magenta", "Cyan", "White"};

/// Ticks one of a choice, none for a number that is no entry.
void Tick(const auto& Choice, int Entry) {
  for (int i = 0; i < std::ssize(Choice); ++i) {
    Choice[i]->setAutoExclusive(false);
    Choice[i]->setChecked(i == Entry);
    Choice[i]->setAutoExclusive(true);
  }
  if (Entry < 0 || Entry >= std::ssize(Choice)) Choice[0]->setFocusPolicy(Qt::StrongFocus);  // for Tab to stop at
}

OptionsPanel::OptionsPanel(frmMain& Main, Game& Table, GameSettings& Options, QStringList BackgroundFolders)
    : QWidget(&Main), form(Main), game(Table), settings(Options), backgrounds(std::move(BackgroundFolders)) {
  setObjectName(QStringLiteral("picOptionsTray"));
  setAccessibleName(QStringLiteral("Options"));
  resize(PanelSize);
  setFont(FontOf(Typeface::Verdana, 11));
  SetColours(*this, {{QPalette::WindowText, Ivory}});
  setStyleSheet(FrameStyle.arg(Ivory.name()) + PaperStyle());
  frames = new QVBoxLayout(this);
  frames->setContentsMargins(6, 3, 6 + width() - StripWidth, 6);
  frames->setSpacing(3);
  BuildSwitches();
  BuildLists();
  BuildSwatches();
  BuildCommands();
  // A style sheet keeps the panel's colours from being inherited.
  for (auto* Option : findChildren<QAbstractButton*>()) Option->setPalette(palette());
  lower();
}

/// A box with a caption; returns what the controls stand in.
QVBoxLayout* OptionsPanel::AddFrame(const QString& Caption, std::initializer_list<QWidget*> Controls) {
  auto* Box = Make<QGroupBox>(this, "fra" + Caption.chopped(1).remove(' '), Caption);
  auto* Inside = new QVBoxLayout(Box);
  Inside->setContentsMargins(9, 6, 9, 6);
  Inside->setSpacing(6);  // with a row of 14 a pitch that all scales keep even
  for (QWidget* Control : Controls) Inside->addWidget(Control);
  frames->addWidget(Box);
  return Inside;
}

void OptionsPanel::BuildSwitches() {
  const QString Speeds[] = {QStringLiteral("Normal"), QStringLiteral("Fast"), QStringLiteral("Ridiculous")};
  for (int i = 0; i < 3; ++i) {
    optComputerSpeed[i] = MakeOption(this, QStringLiteral("optComputerSpeed(%1)").arg(i), Speeds[i]);
  }
  AddFrame(QStringLiteral("Speed:"), {optComputerSpeed[0], optComputerSpeed[1], optComputerSpeed[2]});
  chkSortDice = Make<QCheckBox>(this, QStringLiteral("chkSortDice"), QStringLiteral("Sort Dice"));
  chkMarkScorers = Make<QCheckBox>(this, QStringLiteral("chkMarkScorers"), QStringLiteral("Mark Points"));
  AddFrame(QStringLiteral("Misc:"), {chkSortDice, chkMarkScorers});

  auto* Sound = AddFrame(QStringLiteral("Sound FX:"));
  auto* OnOff = new QHBoxLayout;
  for (const int i : {1, 0}) {
    optSound[i] =
        MakeOption(this, QStringLiteral("optSound(%1)").arg(i), i == 1 ? QStringLiteral("On") : QStringLiteral("Off"));
    OnOff->addWidget(optSound[i]);
  }
  Sound->addLayout(OnOff);
  cmdCustomizeSounds = MakeButton(this, QStringLiteral("cmdCustomizeSounds"), QStringLiteral("Customize"),
                                  [this] { form.Command([this] { emit customizeSoundsAsked(); }); });
  Sound->addWidget(cmdCustomizeSounds);
  cmdCustomizeSounds->setFixedHeight(CommandHeight);
}

void OptionsPanel::BuildLists() {
  cboDiceColor = Make<QComboBox>(this, QStringLiteral("cboDiceColor"));
  cboDiceColor->setAccessibleName(QStringLiteral("Dice"));
  for (const char* Name : OfferedDiceSets()) cboDiceColor->addItem(QLatin1String(Name));
  cboDiceColor->setMaxVisibleItems(cboDiceColor->count());
  AddFrame(QStringLiteral("Dice:"))->addWidget(cboDiceColor);
  cboDiceColor->view()->resize(0, 0);  // or its rows, which nobody sees, would say that they are there
  connect(cboDiceColor, &QComboBox::activated, this, &OptionsPanel::cboDiceColor_Click);
  connect(cboDiceColor, &QComboBox::textActivated, this, &OptionsPanel::told);

  lstSkin = Make<QListWidget>(this, QStringLiteral("lstSkin"));
  lstSkin->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstSkin->setMinimumHeight(60);
  AddFrame(QStringLiteral("Background:"), {lstSkin});
  frames->setStretchFactor(lstSkin->parentWidget(), 1);
  connect(lstSkin, &QListWidget::currentRowChanged, this, &OptionsPanel::lstSkin_Click);
  // A click on the picture that is shown already brings its text colour back.
  connect(lstSkin, &QListWidget::itemClicked, this, [this] { lstSkin_Click(lstSkin->currentRow()); });
}

void OptionsPanel::BuildSwatches() {
  auto* Grid = new QGridLayout;
  Grid->setSpacing(2);
  for (int i = 0; i < 8; ++i) {
    lblColor[i] = MakeOption<Swatch>(this, QStringLiteral("lblColor(%1)").arg(i), QColor(SwatchColours[i]));
    lblColor[i]->setAccessibleName(QLatin1String(ColourNames[i]));
    lblColor[i]->setToolTip(QLatin1String(ColourNames[i]));
    Grid->addWidget(lblColor[i], i / 4, i % 4);
    connect(lblColor[i], &QAbstractButton::clicked, this, [this, i] { lblColor_Click(i); });
  }
  AddFrame(QStringLiteral("Text Color:"))->addLayout(Grid);
}

void OptionsPanel::BuildCommands() {
  ARCmdSaveOptions = MakeButton(this, QStringLiteral("ARCmdSaveOptions"), QStringLiteral("Save"),
                                [this] { form.Command([this] { game.ARCmdSaveOptions_Click(); }); });
  ARCmdCancelOptions = MakeButton(this, QStringLiteral("ARCmdCancelOptions"), QStringLiteral("Cancel"),
                                  [this] { form.Command([this] { game.ARCmdCancelOptions_Click(); }); });
  for (ButtonPlus* Command : {ARCmdSaveOptions, ARCmdCancelOptions}) {
    Command->setFixedHeight(CommandHeight);
    frames->addWidget(Command);
  }
}

/// Navy satin, in the shade of the table's edge.
void OptionsPanel::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  DrawNavy(Painter, rect());
  constexpr int Edge = StripWidth, Deep = 10;  // px
  QLinearGradient Shadow({Edge - Deep, 0}, {Edge, 0});
  Shadow.setColorAt(0, Thin(Shade, 0));
  Shadow.setColorAt(1, Thin(Shade, 0.6));
  Painter.fillRect(Edge - Deep, 0, Deep, height(), Shadow);
  Painter.fillRect(Edge - 1, 0, 1, height(), Brass);
}

/// The list of the backgrounds ends with a whole row, whatever height the style gives a row.
void OptionsPanel::ShowWholeRows() {
  const auto LayOut = [this](int Highest) {
    lstSkin->setMaximumHeight(Highest);
    for (QWidget* Form : {static_cast<QWidget*>(this), lstSkin->parentWidget()}) Form->layout()->activate();
  };
  LayOut(QWIDGETSIZE_MAX);
  const int Row = lstSkin->sizeHintForRow(0), Frame = 2 * lstSkin->frameWidth();
  LayOut((lstSkin->height() - Frame) / Row * Row + Frame);
  lstSkin->scrollToItem(lstSkin->currentItem());
}

void OptionsPanel::Open() {
  ShowSampleDice();
  LoadOptionControls();
  show();
  ShowWholeRows();
  strip.Open(grab(QRect(0, 0, StripWidth, height())));
  form.ShowControls();
  ARCmdSaveOptions->setFocus();
}

/// The preview on the table: the six faces of the chosen set, and the text colour.
void OptionsPanel::ShowSampleDice() {
  SnapshotOptions();
  lblColor_Click(settings.TextColourIndex());
  form.Wears.Covered = true;
  if (const DiceSet* Set = FindDiceSet(cboDiceColor->currentText())) ShowSet(*Set, Set->Open);
}

void OptionsPanel::SnapshotOptions() {
  backgrounds.ScanBackgrounds();
  const QString Background = settings.Background;
  const QSignalBlocker Filling(lstSkin);
  lstSkin->clear();
  lstSkin->addItem(NoBackground);
  int Current = 0;
  for (const QString& Name : backgrounds.BackgroundFiles) {
    lstSkin->addItem(FileBaseName(Name));
    lstSkin->item(lstSkin->count() - 1)->setToolTip(Name);
    const bool IsShown = Background != NoBackground && FileBaseName(Name) == FileBaseName(Background);
    if (IsShown && Current == 0) Current = lstSkin->count() - 1;
  }
  lstSkin->setCurrentRow(Current);
  NameChosen();
  backgroundChosen = false;

  before = form.Wears;
  SavedDieColour = settings.DieColour;
  const DiceSet* Set = FindDiceSet(SavedDieColour);
  cboDiceColor->setCurrentIndex(Set == nullptr ? -1 : cboDiceColor->findText(QLatin1String(Set->Name)));
}

/// To a reader, which doesn't look for the chosen row of a list by itself.
void OptionsPanel::NameChosen() { lstSkin->setAccessibleName("Background: " + lstSkin->currentItem()->text()); }

void OptionsPanel::LoadOptionControls() {
  Tick(optComputerSpeed, settings.ComputerSpeed);
  optSound[settings.SoundDisabled ? 0 : 1]->setChecked(true);
  chkSortDice->setChecked(settings.SortDice);
  chkMarkScorers->setChecked(settings.MarkScorers);
}

void OptionsPanel::cboDiceColor_Click() {
  if (const DiceSet* Set = FindDiceSet(cboDiceColor->currentText())) ShowSet(*Set, Set->Pick);
  form.ShowControls();
}

/// The set is stored at once; Cancel takes it back out of the settings.
void OptionsPanel::ShowSet(const DiceSet& Set, QRgb Colour) {
  settings.DieColour = static_cast<std::int16_t>(Set.Base);
  form.Wears.Trays = form.Wears.Cover = Colour;
  form.Wears.SampleSet = Set.Base;
}

void OptionsPanel::lstSkin_Click(int Entry) {
  if (Entry < 0) return;
  backgroundChosen = true;
  NameChosen();
  const QString Name = Entry == 0 ? QString() : backgrounds.BackgroundFiles[Entry - 1];
  form.Wears.Background = Entry == 0 ? NoBackground : backgrounds.PathOf(Name);
  form.ShowBackground();
  lblColor_Click(Entry == 0 ? 0 : backgrounds.ColourIndexOf(Name));
}

/// Ticks the swatch, none for a number that is no index, and shows the colour.
void OptionsPanel::lblColor_Click(int Index) {
  Tick(lblColor, Index);
  form.Wears.TextColour = ColourOfIndex(Index);
  if (form.Wears.Covered) form.ShowControls();
}

void OptionsPanel::Settle(bool Save) {
  const WrittenTogether All = settings.WriteTogether();
  if (Save) {
    StoreOptionControls();
    ApplyOptions();
  } else {
    RevertOptions();
  }
  form.Wears.SampleSet = 0;
  form.Wears.Covered = false;
}

void OptionsPanel::StoreOptionControls() {
  for (int i = 0; i < 3; ++i) {
    if (optComputerSpeed[i]->isChecked()) settings.ComputerSpeed = i;
  }
  settings.SoundDisabled = optSound[0]->isChecked();
  settings.SortDice = chkSortDice->isChecked();
  settings.MarkScorers = chkMarkScorers->isChecked();
}

void OptionsPanel::ApplyOptions() {
  if (backgroundChosen) settings.Background = form.Wears.Background;  // else also one that the list doesn't hold stays
  for (int i = 0; i < 8; ++i) {
    if (lblColor[i]->isChecked()) settings.setTextColourIndex(i);
  }
  form.Wears.TextColour = settings.TextColour();
  if (const DiceSet* Set = FindDiceSet(cboDiceColor->currentText())) {
    settings.DieColour = static_cast<std::int16_t>(Set->Base);  // another copy may have written its own meanwhile
  }
}

void OptionsPanel::RevertOptions() {
  form.Wears = before;
  settings.Background = before.Background;
  settings.DieColour = SavedDieColour;
}

void OptionsPanel::Close() {
  form.ShowControls();
  strip.Close();
  form.setFocus();
  hide();
}

}  // namespace blunko
