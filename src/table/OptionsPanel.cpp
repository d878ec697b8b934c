#include "table/OptionsPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QListWidget>
#include <QRadioButton>
#include <QVBoxLayout>

#include "table/DiceSets.h"
#include "table/frmMain.h"
#include "widgets/Fonts.h"
#include "widgets/Twips.h"

namespace blunko {

namespace {

constexpr int PanelWidth = 2385, PanelHeight = 7695;  // twips; the table covers the rest of the panel
constexpr int StripWidth = 1890;                      // twips, of the panel on the screen
const QColor ListText(0, 0, 128), ListGround(250, 250, 252);

constexpr int CommandHeight = 27;  // px

// A thin line all round, with the caption in it: the style's own group boxes take more height than the strip has.
const QString FrameStyle = QStringLiteral(
    "QGroupBox { border: 1px solid palette(highlighted-text); border-radius: 4px; margin-top: 7px; }"
    "QGroupBox::title { subcontrol-origin: margin; left: 7px; padding: 0 3px; background: palette(highlight);"
    "                   color: palette(highlighted-text); }");

// Entry 6 shows a purer cyan than the text gets.
constexpr QRgb SwatchColours[] = {0x000000, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
const char* const ColourNames[] = {"Black", "Red", "Green", "Yellow", "Blue", "Magenta", "Cyan", "White"};

}  // namespace

OptionsPanel::OptionsPanel(frmMain& Main, Game& Table, GameSettings& Options, QString BackgroundFolder)
    : QWidget(&Main), form(Main), game(Table), settings(Options), backgrounds(std::move(BackgroundFolder)) {
  setObjectName(QStringLiteral("picOptionsTray"));
  setGeometry(TwipsRect(0, 0, PanelWidth, PanelHeight));
  setFont(FontOf(Typeface::Verdana, 8.25));
  QPalette Colours = palette();
  Colours.setColor(QPalette::Window, Colours.color(QPalette::Highlight));
  Colours.setColor(QPalette::WindowText, Colours.color(QPalette::HighlightedText));
  setPalette(Colours);
  setAutoFillBackground(true);
  setStyleSheet(FrameStyle);
  Build();
  FixButtonColours(*this);
  lower();
  hide();
}

void OptionsPanel::Build() {
  auto* Outer = new QVBoxLayout(this);
  Outer->setContentsMargins(6, 3, 6 + width() - Pixels(StripWidth), 6);
  Outer->setSpacing(3);

  const auto Frame = [&](const QString& Caption) {
    auto* Box = new QGroupBox(Caption, this);
    auto* Inside = new QVBoxLayout(Box);
    Inside->setContentsMargins(6, 6, 5, 5);
    Inside->setSpacing(2);
    Outer->addWidget(Box);
    return Inside;
  };
  const auto Add = [](QVBoxLayout* Inside, auto* Made, const QString& Name) {
    Made->setObjectName(Name);
    Inside->addWidget(Made);
    return Made;
  };

  auto* Speed = Frame(QStringLiteral("Speed:"));
  const QString Speeds[] = {QStringLiteral("Normal"), QStringLiteral("Fast"), QStringLiteral("Ridiculous")};
  for (int i = 0; i < 3; ++i) {
    optComputerSpeed[i] = Add(Speed, new QRadioButton(Speeds[i]), QStringLiteral("optComputerSpeed(%1)").arg(i));
  }
  auto* Misc = Frame(QStringLiteral("Misc:"));
  chkSortDice = Add(Misc, new QCheckBox(QStringLiteral("Sort Dice")), QStringLiteral("chkSortDice"));
  chkMarkScorers = Add(Misc, new QCheckBox(QStringLiteral("Mark Points")), QStringLiteral("chkMarkScorers"));

  auto* Sound = Frame(QStringLiteral("Sound FX:"));
  auto* OnOff = new QHBoxLayout;
  for (const int i : {1, 0}) {
    optSound[i] = new QRadioButton(i == 1 ? QStringLiteral("On") : QStringLiteral("Off"));
    optSound[i]->setObjectName(QStringLiteral("optSound(%1)").arg(i));
    OnOff->addWidget(optSound[i]);
  }
  Sound->addLayout(OnOff);
  cmdCustomizeSounds = Add(Sound, new ButtonPlus(QStringLiteral("Customize")), QStringLiteral("cmdCustomizeSounds"));
  cmdCustomizeSounds->setFixedHeight(CommandHeight);
  connect(cmdCustomizeSounds, &QPushButton::clicked, this, &OptionsPanel::customizeSoundsAsked);

  auto* DiceFrame = Frame(QStringLiteral("Dice:"));
  cboDiceColor = Add(DiceFrame, new QComboBox, QStringLiteral("cboDiceColor"));
  cboDiceColor->setAccessibleName(QStringLiteral("Dice"));
  for (const char* Name : OfferedDiceSets()) cboDiceColor->addItem(QLatin1String(Name));
  cboDiceColor->setMaxVisibleItems(cboDiceColor->count());
  connect(cboDiceColor, &QComboBox::activated, this, &OptionsPanel::cboDiceColor_Click);

  auto* Skin = Frame(QStringLiteral("Background:"));
  lstSkin = Add(Skin, new QListWidget, QStringLiteral("lstSkin"));
  lstSkin->setAccessibleName(QStringLiteral("Background"));
  lstSkin->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstSkin->setMinimumHeight(60);
  connect(lstSkin, &QListWidget::currentRowChanged, this, &OptionsPanel::lstSkin_Click);
  // A click on the picture that is shown already brings its text colour back.
  connect(lstSkin, &QListWidget::itemClicked, this, [this] { lstSkin_Click(lstSkin->currentRow()); });
  for (QWidget* List : std::initializer_list<QWidget*>{cboDiceColor, cboDiceColor->view(), lstSkin}) {
    QPalette Ink = List->palette();
    for (const QPalette::ColorRole Letters : {QPalette::Text, QPalette::ButtonText}) Ink.setColor(Letters, ListText);
    for (const QPalette::ColorRole Ground : {QPalette::Base, QPalette::Button}) Ink.setColor(Ground, ListGround);
    List->setPalette(Ink);
  }

  for (auto* Option : findChildren<QAbstractButton*>()) {
    if (Option != cmdCustomizeSounds) Option->setPalette(palette());  // a style sheet keeps it from being inherited
  }

  auto* Text = Frame(QStringLiteral("Text Color:"));
  auto* Grid = new QGridLayout;
  Grid->setSpacing(3);
  for (int i = 0; i < 8; ++i) {
    lblColor[i] = new Swatch(QColor(SwatchColours[i]));
    lblColor[i]->setObjectName(QStringLiteral("lblColor(%1)").arg(i));
    lblColor[i]->setAccessibleName(QLatin1String(ColourNames[i]));
    lblColor[i]->setToolTip(QLatin1String(ColourNames[i]));
    Grid->addWidget(lblColor[i], i / 4, i % 4);
    connect(lblColor[i], &QAbstractButton::clicked, this, [this, i] { lblColor_Click(i); });
  }
  Text->addLayout(Grid);
  Outer->setStretchFactor(Skin->parentWidget(), 1);

  const auto Command = [&](const char* Name, const QString& Caption) {
    auto* Made = new ButtonPlus(Caption, this);
    Made->setObjectName(QLatin1String(Name));
    Made->setFixedHeight(CommandHeight);
    Outer->addWidget(Made);
    return Made;
  };
  ARCmdSaveOptions = Command("ARCmdSaveOptions", QStringLiteral("Save"));
  ARCmdCancelOptions = Command("ARCmdCancelOptions", QStringLiteral("Cancel"));
  connect(ARCmdSaveOptions, &QPushButton::clicked, this, &OptionsPanel::ARCmdSaveOptions_Click);
  connect(ARCmdCancelOptions, &QPushButton::clicked, this, &OptionsPanel::ARCmdCancelOptions_Click);
}

void OptionsPanel::cmdOptions_Click() {
  if (open || game.m.Quitting) return;
  open = true;
  game.m.PauseComputer = true;
  game.t.picGameTray.Enabled = false;  // and with it everything on the table
  game.m.ResizeBlocked = true;
  show();
  form.SetStripWidth(Pixels(StripWidth));
  game.m.ResizeBlocked = false;
  ShowSampleDice();
  LoadOptionControls();
  form.ShowControls();
  ARCmdSaveOptions->setFocus();
  game.desktop.PlaySoundFile(game.Settings.GetSound("GameOver"), false);
}

/// The preview on the table: the six faces of the chosen set, and the text colour.
void OptionsPanel::ShowSampleDice() {
  SnapshotOptions();
  lblColor_Click(settings.TextColourIndex());
  form.CoverTray(true);
  if (const DiceSet* Set = FindDiceSet(cboDiceColor->currentText())) ShowSet(*Set, QColor(Set->Open));
  game.desktop.PlaySoundFile(game.Settings.GetSound("GameOver"), false);
}

void OptionsPanel::SnapshotOptions() {
  backgrounds.ScanBackgrounds();
  SavedBackground = settings.Background();
  const QSignalBlocker Filling(lstSkin);
  lstSkin->clear();
  lstSkin->addItem(NoBackground);
  int Current = 0;
  for (const QString& Name : backgrounds.BackgroundFiles) {
    lstSkin->addItem(FileBaseName(Name));
    lstSkin->item(lstSkin->count() - 1)->setToolTip(Name);
    const bool IsShown = SavedBackground != NoBackground && FileBaseName(Name) == FileBaseName(SavedBackground);
    if (IsShown && Current == 0) Current = lstSkin->count() - 1;
  }
  lstSkin->setCurrentRow(Current);
  backgroundChosen = false;

  SavedTray1Colour = form.picTray1->BackColor();
  SavedTray2Colour = form.picTray2->BackColor();
  SavedDieColour = settings.DieColour();
  const DiceSet* Set = FindDiceSet(SavedDieColour);
  cboDiceColor->setCurrentIndex(Set == nullptr ? -1 : cboDiceColor->findText(QLatin1String(Set->Name)));
}

void OptionsPanel::LoadOptionControls() {
  optComputerSpeed[static_cast<std::size_t>(settings.ComputerSpeed())]->setChecked(true);
  optSound[settings.SoundDisabled() ? 0 : 1]->setChecked(true);
  chkSortDice->setChecked(settings.SortDice());
  chkMarkScorers->setChecked(settings.MarkScorers());
}

void OptionsPanel::cboDiceColor_Click() {
  if (const DiceSet* Set = FindDiceSet(cboDiceColor->currentText())) ShowSet(*Set, QColor(Set->Pick));
}

/// The set is stored at once; Cancel takes it back out of the settings.
void OptionsPanel::ShowSet(const DiceSet& Set, const QColor& Colour) {
  settings.setDieColour(static_cast<std::int16_t>(Set.Base));
  form.PaintTrays(Colour, Colour);
  form.picSampleDice->setBackColor(Colour);
  form.ShowSampleFaces(Set.Base);
}

void OptionsPanel::lstSkin_Click(int Entry) {
  if (Entry < 0) return;
  backgroundChosen = true;
  if (Entry == 0) {
    form.ShowBackground(NoBackground);
    lblColor_Click(0);
    return;
  }
  const QString& Name = backgrounds.BackgroundFiles[Entry - 1];
  form.ShowBackground(backgrounds.PathOf(Name));
  lblColor_Click(backgrounds.ColourIndexOf(Name));
}

/// Ticks the swatch, none for a number that is no index, and shows the colour.
void OptionsPanel::lblColor_Click(int Index) {
  for (int i = 0; i < 8; ++i) lblColor[i]->setChecked(i == Index);
  form.ColourLabels(ColourOfIndex(Index));
}

void OptionsPanel::ARCmdSaveOptions_Click() {
  if (!open) return;
  {
    const WrittenTogether Save = settings.WriteTogether();
    StoreOptionControls();
    ApplyOptions();
  }
  Close();
}

void OptionsPanel::ARCmdCancelOptions_Click() {
  if (!open) return;
  RevertOptions();
  Close();
}

void OptionsPanel::StoreOptionControls() {
  for (int i = 0; i < 3; ++i) {
    if (optComputerSpeed[i]->isChecked()) settings.setComputerSpeed(i);
  }
  settings.setSoundDisabled(optSound[0]->isChecked());
  settings.setSortDice(chkSortDice->isChecked());
  settings.setMarkScorers(chkMarkScorers->isChecked());
}

void OptionsPanel::ApplyOptions() {
  if (!settings.MarkScorers()) game.t.picMarker.fill(false);
  if (backgroundChosen) {  // else it stays as it is, also one that the list doesn't hold
    const int Entry = lstSkin->currentRow();
    settings.setBackground(Entry > 0 ? backgrounds.PathOf(backgrounds.BackgroundFiles[Entry - 1]) : NoBackground);
  }
  form.ShowBackground(settings.Background());
  for (int i = 0; i < 8; ++i) {
    if (lblColor[i]->isChecked()) settings.setTextColourIndex(i);
  }
  form.ColourLabels(settings.TextColour());
  if (const DiceSet* Set = FindDiceSet(cboDiceColor->currentText())) {
    settings.setDieColour(static_cast<std::int16_t>(Set->Base));
  }
  game.RedrawDice();
}

void OptionsPanel::RevertOptions() {
  const WrittenTogether Save = settings.WriteTogether();
  settings.setBackground(SavedBackground);
  form.ShowBackground(SavedBackground);
  form.ColourLabels(settings.TextColour());
  settings.setDieColour(SavedDieColour);
  form.PaintTrays(SavedTray1Colour, SavedTray2Colour);
  game.RedrawDice();
}

/// The window shrinks again. What the buttons may do now is the game's record, not what they could at the opening.
void OptionsPanel::Close() {
  open = false;
  form.ShowSampleFaces(0);
  form.CoverTray(false);
  game.m.ResizeBlocked = true;
  form.SetStripWidth(0);
  hide();
  game.m.ResizeBlocked = false;
  game.t.picGameTray.Enabled = true;
  game.m.PauseComputer = false;
  form.setFocus();
  form.ShowControls();
}

}  // namespace blunko
