#include "app/Accessibility.h"

#include <QAccessibleWidget>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QWindow>

#include <utility>

#include "app/Announcer.h"
#include "app/frmCredits.h"
#include "table/DieBox.h"
#include "table/Swatch.h"
#include "table/frmMain.h"
#include "table/frmScorePad.h"
#include "widgets/FitLabel.h"
#include "widgets/Pictures.h"
#include "widgets/WordButton.h"

namespace blunko {

namespace {

/// A part of our own painting. One without a name only looks nice, and isn't there.
class AccessiblePart : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QString text(QAccessible::Text Kind) const override {
    if (Kind == QAccessible::Description) return {};  // a tool tip, which only says the name
    const QString Own = QAccessibleWidget::text(Kind);
    return Kind == QAccessible::Name && Own.isEmpty() ? object()->property("text").toString() : Own;
  }
  QAccessible::State state() const override {
    QAccessible::State State = QAccessibleWidget::state();
    State.invisible |= text(QAccessible::Name).trimmed().isEmpty();
    return State;
  }
};

/// A button of our own painting.
class AccessibleButton : public AccessiblePart {
 public:
  using AccessiblePart::AccessiblePart;

  QAccessible::State state() const override {
    QAccessible::State State = AccessiblePart::state();
    const auto* Button = static_cast<QAbstractButton*>(object());
    State.checkable = Button->isCheckable();
    State.checked = Button->isChecked();
    return State;
  }
  QStringList actionNames() const override { return QAccessibleWidget::actionNames() << pressAction(); }
  void doAction(const QString& Name) override {
    if (Name != pressAction()) return QAccessibleWidget::doAction(Name);
    // The caller doesn't wait until the dice have moved.
    QMetaObject::invokeMethod(static_cast<QAbstractButton*>(object()), &QAbstractButton::click, Qt::QueuedConnection);
  }
};

/// A die that a press doesn't take is disabled, to whoever asks: by mouse and keys it can be tried, and beeps. The dice
/// of the sample are only to be looked at.
class AccessibleDie : public AccessibleButton {
 public:
  explicit AccessibleDie(DieBox* Box) : AccessibleButton(Box, QAccessible::Button) {}

  QAccessible::State state() const override {
    QAccessible::State State = AccessibleButton::state();
    State.disabled |= !static_cast<DieBox*>(object())->IsTakeable();
    return State;
  }
};

/// A word that opens a menu. One that takes no focus is the caption of a box, which has its name.
class AccessibleWord : public AccessibleButton {
 public:
  explicit AccessibleWord(WordButton* Word) : AccessibleButton(Word, QAccessible::ButtonMenu) {}

  QAccessible::State state() const override {
    QAccessible::State State = AccessibleButton::state();
    State.hasPopup = true;
    State.invisible |= widget()->focusPolicy() == Qt::NoFocus;
    return State;
  }
};

/// A text; one that stands for a row of the pad has a name of its own.
class AccessibleText : public AccessiblePart {
 public:
  explicit AccessibleText(FitLabel* Label) : AccessiblePart(Label) {}

  QAccessible::Role role() const override {
    return widget()->accessibleName().isEmpty() ? QAccessible::StaticText : QAccessible::ListItem;
  }
};

/// The pad: its two headings, and a row a seat.
class AccessiblePad : public QAccessibleWidget {
 public:
  explicit AccessiblePad(frmScorePad* Pad) : QAccessibleWidget(Pad, QAccessible::List, Pad->windowTitle().trimmed()) {}

  int childCount() const override { return static_cast<int>(Rows().size()); }
  QAccessibleInterface* child(int Index) const override {
    return QAccessible::queryAccessibleInterface(Rows().value(Index));
  }
  int indexOfChild(const QAccessibleInterface* Child) const override {
    return static_cast<int>(Rows().indexOf(static_cast<QWidget*>(Child->object())));
  }

 private:
  QList<QWidget*> Rows() const { return static_cast<frmScorePad*>(object())->Rows(); }
};

/// A list of high rollers, without the dots between name and score.
class AccessibleRollers : public QAccessibleWidget {
 public:
  explicit AccessibleRollers(QPlainTextEdit* Rows) : QAccessibleWidget(Rows, QAccessible::StaticText) {}

  QString text(QAccessible::Text Kind) const override {
    QString Name = QAccessibleWidget::text(Kind);
    if (Kind != QAccessible::Name) return Name;
    QString Rows = static_cast<QPlainTextEdit*>(object())->toPlainText();
    static const QRegularExpression Dots(QStringLiteral("\\.+(?=\\d+$)"), QRegularExpression::MultilineOption);
    return Name + ":\n" + Rows.replace(Dots, " ");
  }
};

QAccessibleInterface* InterfaceOf(const QString& Class, QObject* Object) {
  if (!Object->isWidgetType()) return nullptr;
  auto* const Widget = static_cast<QWidget*>(Object);
  if (auto* Box = qobject_cast<DieBox*>(Object)) return new AccessibleDie(Box);
  if (auto* Word = qobject_cast<WordButton*>(Object)) return new AccessibleWord(Word);
  if (auto* Label = qobject_cast<FitLabel*>(Object)) return new AccessibleText(Label);
  if (auto* Pad = qobject_cast<frmScorePad*>(Object)) return new AccessiblePad(Pad);
  if (auto* Box = qobject_cast<QGroupBox*>(Object)) {  // readers say of it what they say of each choice in it
    return new QAccessibleWidget(Box, QAccessible::Client, Box->title());
  }
  if (auto* Colour = qobject_cast<Swatch*>(Object)) return new AccessibleButton(Colour, QAccessible::RadioButton);
  if (auto* Rows = qobject_cast<QPlainTextEdit*>(Object)) return new AccessibleRollers(Rows);
  if (qobject_cast<ScrollBox*>(Object) != nullptr) return new QAccessibleWidget(Widget, QAccessible::StaticText);
  if (qobject_cast<Announcer*>(Widget->parentWidget()) != nullptr) {
    return new QAccessibleWidget(Widget, QAccessible::Notification);
  }
  if (qobject_cast<SvgBox*>(Object) != nullptr) return new AccessiblePart(Widget, QAccessible::Graphic);
  if (Class != QLatin1String("QWidget")) return nullptr;  // the toolkit knows it, or a base of it
  if (Widget->isWindow()) return new QAccessibleWidget(Widget, QAccessible::Window);
  return new AccessiblePart(Widget, QAccessible::Grouping);
}

/// Whether it stands on the table, or on the pad.
bool IsOfTable(const QWidget* Widget) {
  if (qobject_cast<frmScorePad*>(Widget->window()) != nullptr) return !Widget->isWindow();
  const auto* Form = qobject_cast<frmMain*>(Widget->window());
  return Form != nullptr && Form->picGameTray->isAncestorOf(Widget);
}

void PassOnWhatCounts(QAccessibleEvent* Event);

void PassOn(QAccessibleEvent& Event) {
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(&Event);
  QAccessible::installUpdateHandler(&PassOnWhatCounts);
}

/// Of an announcement it is told only that it is there, of the table only where the focus is: TableNews tells the rest.
void PassOnWhatCounts(QAccessibleEvent* Event) {
  const auto* Widget = qobject_cast<QWidget*>(Event->object());
  if (Widget == nullptr) return PassOn(*Event);
  const bool Announces = qobject_cast<Announcer*>(Widget->parentWidget()) != nullptr;
  // A focus that waits at the window, until a button or die is there again, is as good as where it was.
  const bool Waits = qobject_cast<const frmMain*>(Widget) != nullptr;
  const bool WasShown = Widget->window()->windowHandle() != nullptr;  // else nobody has read it
  const QAccessible::Event Kind = Event->type();
  const bool Counts = Announces                    ? Kind == QAccessible::ObjectShow
                      : Kind == QAccessible::Focus ? !Waits
                                                   : !IsOfTable(Widget);
  if (Counts && WasShown) PassOn(*Event);
}

}  // namespace

void InstallAccessibility() {
  QAccessible::installFactory(&InterfaceOf);
  QAccessible::installUpdateHandler(&PassOnWhatCounts);
}

/// What isn't there is told when it is back.
void TableNews::Tell(const frmMain& Form) {
  for (QWidget* Widget : Form.findChildren<QWidget*>()) {
    if (!IsOfTable(Widget)) continue;
    const QAccessibleInterface& Now = *QAccessible::queryAccessibleInterface(Widget);
    if (Now.role() == QAccessible::Grouping) continue;  // a mark's die tells by its name what the mark does
    const QAccessible::State State = Now.state();
    const bool There = !State.invisible, Disabled = State.disabled;
    Part& Old = told.try_emplace(Widget, Part{There, Disabled, Now.text(QAccessible::Name)}).first->second;
    if (std::exchange(Old.There, There) != There) {
      QAccessibleEvent Event(Widget, There ? QAccessible::ObjectShow : QAccessible::ObjectHide);
      PassOn(Event);
    }
    if (There && std::exchange(Old.Name, Now.text(QAccessible::Name)) != Now.text(QAccessible::Name)) {
      QAccessibleEvent Event(Widget, QAccessible::NameChanged);
      PassOn(Event);
    }
    if (There && std::exchange(Old.Disabled, Disabled) != Disabled) {
      QAccessible::State Changed;
      Changed.disabled = true;
      QAccessibleStateChangeEvent Event(Widget, Changed);
      PassOn(Event);
    }
  }
}

}  // namespace blunko
