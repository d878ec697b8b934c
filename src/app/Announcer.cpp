#include "app/Announcer.h"

#include <QAccessible>

#include <chrono>

namespace blunko {

Announcer::Announcer(QWidget* Table) : QWidget(Table) {
  setObjectName(QStringLiteral("announcer"));
  resize(1, 1);
  clock.start();
  connect(&next, &QTimer::timeout, this, &Announcer::TellNext);
}

void Announcer::Tell(const SpokenLine& Line) {
  queue.Add(Line, AnnouncementQueue::Time(clock.elapsed()));
  TellNext();
}

void Announcer::TellNext() {
  const AnnouncementQueue::Time Now(clock.elapsed());
  while (const auto Line = queue.Take(Now)) Answer(QString::fromStdString(Line->Text), Line->Interrupts);
  const auto Due = queue.Due();
  Due ? next.start(*Due - Now) : next.stop();
}

void Announcer::Answer(const QString& Text, [[maybe_unused]] bool Interrupts) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent Event(parentWidget(), Text);
  if (Interrupts) Event.setPoliteness(QAccessible::AnnouncementPoliteness::Assertive);
  QAccessible::updateAccessibility(&Event);
#else
  // A notification that comes up is read out: an event alone isn't passed on. A reader asks for the words some time
  // after it has heard that there are some, and others may have come by then.
  constexpr std::chrono::seconds TimeToAsk{30};
  auto* Note = new QWidget(this);
  Note->setAccessibleName(Text);
  Note->show();
  QTimer::singleShot(TimeToAsk, Note, &QObject::deleteLater);
#endif
}

}  // namespace blunko
