#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QString>
#include <QVBoxLayout>

#include <initializer_list>
#include <utility>
#include <variant>

#include "widgets/ButtonPlus.h"
#include "widgets/Fonts.h"
#include "widgets/TickBox.h"
#include "widgets/WordButton.h"

namespace blunko {

// What every form is put together with. A control takes its object name where it is made, as its only name for tests
// and for the tree that screen readers walk; it is placed by a layout, or by `Placed` where the form gives its place.

/// A control of any class, made of `Values` in the form or box `Parent`.
template <typename Control, typename... Arguments>
Control* Make(QWidget* Parent, const QString& Name, Arguments&&... Values) {
  auto* Made = new Control(std::forward<Arguments>(Values)..., Parent);
  Made->setObjectName(Name);
  return Made;
}

/// Puts a control at its place in its parent, in logical pixels; returns it.
template <typename Control>
Control* Placed(Control* Made, const QRect& Place) {
  Made->setGeometry(Place);
  return Made;
}

/// A label of the class `Label` with a caption, taken as it is: no letter of it is markup.
template <typename Label = QLabel>
Label* MakeText(QWidget* Parent, const QString& Name, const QString& Caption, const QFont& Font,
                Qt::Alignment Side = Qt::AlignCenter) {
  auto* Made = Make<Label>(Parent, Name);
  Made->setTextFormat(Qt::PlainText);
  Made->setText(Caption);
  Made->setFont(Font);
  Made->setAlignment(Side);
  return Made;
}

/// A button that runs `Run`, a member of the form or a function, when it is pressed.
template <typename Form, typename Slot>
ButtonPlus* MakeButton(Form* Parent, const QString& Name, const QString& Caption, Slot Run) {
  auto* Made = Make<ButtonPlus>(Parent, Name, Caption);
  QObject::connect(Made, &QPushButton::clicked, Parent, Run);
  return Made;
}

/// One of a choice. The choice is one stop of the Tab key, at the chosen one, whoever has chosen it.
template <typename Option = QRadioButton, typename Look = QString>
Option* MakeOption(QWidget* Parent, const QString& Name, const Look& Caption) {
  auto* Made = Make<Option>(Parent, Name, Caption);
  Made->setAutoExclusive(true);
  Made->setFocusPolicy(Qt::ClickFocus);
  QObject::connect(Made, &Option::toggled, Made,
                   [Made](bool On) { Made->setFocusPolicy(On ? Qt::StrongFocus : Qt::ClickFocus); });
  return Made;
}

/// Changes colours of a widget, and of what inherits them.
inline void SetColours(QWidget& Widget, std::initializer_list<std::pair<QPalette::ColorRole, QColor>> Colours) {
  QPalette All = Widget.palette();
  for (const auto& [Role, Colour] : Colours) All.setColor(Role, Colour);
  Widget.setPalette(All);
}

/// The button that Enter presses and the eye meets first.
inline void SetFirst(ButtonPlus* Button) {
  Button->setDefault(true);
  Button->setHero();
  Button->setFocus();
}

/// A title in the letters of the trophy's greeting.
inline QLabel* MakeTitle(QWidget* Parent, const QString& Name, const QString& Caption, int Size, const QColor& Colour) {
  QLabel* Made = MakeText(Parent, Name, Caption, FontOf(Typeface::Serif, Size, true));
  SetColours(*Made, {{QPalette::WindowText, Colour}});
  return Made;
}

/// What a screen reader calls the widget. It hears of it only when it changes.
inline void SetName(QWidget& Widget, const QString& Name) {
  if (Widget.accessibleName() != Name) Widget.setAccessibleName(Name);
}

/// The words beside a tick box: a click on them is one on the box, which takes the focus for both.
inline WordButton* MakeWordsOf(TickBox* Box, const QString& Name, const QString& Caption) {
  auto* Made = Make<WordButton>(Box->parentWidget(), Name, Caption);
  Made->setFont(FontOf(Typeface::Verdana, 11));
  Made->setFocusPolicy(Qt::NoFocus);
  Box->setAccessibleName(Caption);
  QObject::connect(Made, &QPushButton::clicked, Box, &QAbstractButton::click);
  return Made;
}

/// Controls side by side in the middle of the form, this many pixels apart.
inline QHBoxLayout* CentredRow(std::initializer_list<QWidget*> Controls, int Gap = 0) {
  auto* Row = new QHBoxLayout;
  Row->setSpacing(Gap);
  Row->addStretch();
  for (QWidget* Control : Controls) Row->addWidget(Control);
  Row->addStretch();
  return Row;
}

/// Fills a form from the top down with controls, rows of them, and pixels of nothing; `Gap` px lie between them
/// besides.
inline QVBoxLayout* Stack(QWidget* Form, const QMargins& Edges, int Gap,
                          std::initializer_list<std::variant<QWidget*, QLayout*, int>> Parts) {
  auto* Column = new QVBoxLayout(Form);
  Column->setContentsMargins(Edges);
  Column->setSpacing(Gap);
  for (const auto& Part : Parts) {
    if (const auto* Control = std::get_if<QWidget*>(&Part)) Column->addWidget(*Control);
    if (const auto* Row = std::get_if<QLayout*>(&Part)) Column->addLayout(*Row);
    if (const auto* Space = std::get_if<int>(&Part)) Column->addSpacing(*Space);
  }
  return Column;
}

}  // namespace blunko
