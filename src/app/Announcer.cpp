#include "app/Announcer.h"

#include <QAccessible>
#include <QTimer>

#include <chrono>

namespace blunko {

namespace {

/// A reader asks for the words some time after it has heard that there are some, and others may have come by then.
constexpr std::chrono::seconds TimeToAsk{5};

}  // namespace

Announcer::Announcer(QWidget* Table) : QWidget(Table) {
  setObjectName(QStringLiteral("announcer"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  resize(1, 1);
}

bool Announcer::IsHeard() { return QAccessible::isActive(); }

void Announcer::Say(const QString& Text) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent Event(parentWidget(), Text);
  QAccessible::updateAccessibility(&Event);
#else
  // A notification that comes up is read out: an event alone isn't passed on.
  auto* Note = new QWidget(this);
  Note->setAccessibleName(Text);
  Note->show();
  QTimer::singleShot(TimeToAsk, Note, &QObject::deleteLater);
#endif
}

}  // namespace blunko
