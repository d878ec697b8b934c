#include "app/Announcer.h"

#include <QAccessible>

namespace blunko {

Announcer::Announcer(QWidget* Table) : QWidget(Table) {
  setObjectName(QStringLiteral("announcer"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  resize(1, 1);
  hide();
}

bool Announcer::IsHeard() { return QAccessible::isActive(); }

void Announcer::Say(const QString& Text) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent Event(parentWidget(), Text);
  QAccessible::updateAccessibility(&Event);
#else
  // A notification that comes up is read out: an event alone isn't passed on.
  hide();
  setAccessibleName(Text);
  show();
#endif
}

}  // namespace blunko
