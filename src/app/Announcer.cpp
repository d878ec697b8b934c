#include "app/Announcer.h"

#include <QAccessible>

namespace blunko {

Announcer::Announcer(QWidget* Table) : QWidget(Table) {
  setObjectName(QStringLiteral("announcer"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  resize(1, 1);
  for (QWidget*& Note : notes) {
    Note = new QWidget(this);
    Note->hide();
  }
}

bool Announcer::IsHeard() { return QAccessible::isActive(); }

void Announcer::Say(const QString& Text) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent Event(parentWidget(), Text);
  QAccessible::updateAccessibility(&Event);
#else
  // A notification that comes up is read out: an event alone isn't passed on.
  notes[said++ % notes.size()]->hide();
  QWidget& Note = *notes[said % notes.size()];
  Note.setAccessibleName(Text);
  Note.show();
#endif
}

}  // namespace blunko
