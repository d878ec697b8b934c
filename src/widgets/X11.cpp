#include "widgets/X11.h"

#include <QGuiApplication>
#include <QImage>
#include <QThread>
#include <QWidget>

#if QT_CONFIG(xcb)
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <memory>
#endif

namespace blunko {

#if QT_CONFIG(xcb)

namespace {

constexpr int LongestWait = 100, LookEvery = 2;  // ms, for the window manager's answer

Display* Server() {
  const auto* X11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return X11 == nullptr ? nullptr : X11->display();
}

struct Release {
  void operator()(void* Data) const { XFree(Data); }
};

/// A property of some longs; null without it.
std::unique_ptr<unsigned char, Release> Property(Display* To, Window Of, const char* Name, Atom Type,
                                                 unsigned long Count) {
  Atom Found = None;
  int Format = 0;
  unsigned long Items = 0, Rest = 0;
  unsigned char* Data = nullptr;
  XGetWindowProperty(To, Of, XInternAtom(To, Name, False), 0, static_cast<long>(Count), False, Type, &Found, &Format,
                     &Items, &Rest, &Data);
  std::unique_ptr<unsigned char, Release> Owned(Data);
  if (Format != 32 || Items != Count) Owned.reset();
  return Owned;
}

}  // namespace

std::optional<QMargins> FrameToCome(QWidget& Window) {
  Display* const To = Server();
  if (To == nullptr) return {};
  const ::Window Root = DefaultRootWindow(To);
  if (Property(To, Root, "_NET_SUPPORTING_WM_CHECK", XA_WINDOW, 1) == nullptr) return QMargins();
  XEvent Question{};
  Question.xclient.type = ClientMessage;
  Question.xclient.window = Window.winId();
  Question.xclient.message_type = XInternAtom(To, "_NET_REQUEST_FRAME_EXTENTS", False);
  Question.xclient.format = 32;
  XSendEvent(To, Root, False, SubstructureRedirectMask | SubstructureNotifyMask, &Question);
  for (int Waited = 0; Waited < LongestWait; Waited += LookEvery) {
    XSync(To, False);
    if (const auto Found = Property(To, Window.winId(), "_NET_FRAME_EXTENTS", XA_CARDINAL, 4)) {
      const auto* Sides = reinterpret_cast<const long*>(Found.get());  // left, right, top, bottom, in pixels
      const auto Logical = [&](int Side) {
        return qRound(static_cast<double>(Sides[Side]) / Window.devicePixelRatioF());
      };
      return QMargins(Logical(0), Logical(2), Logical(1), Logical(3));
    }
    QThread::msleep(LookEvery);
  }
  return {};
}

bool HearKeysReleasedOnce() {
  Display* const To = Server();
  return To != nullptr && XkbSetDetectableAutoRepeat(To, True, nullptr) == True;
}

std::optional<std::set<quint32>> KeysDown() {
  Display* const To = Server();
  if (To == nullptr) return {};
  char Bits[32];
  XQueryKeymap(To, Bits);
  std::set<quint32> Down;
  for (quint32 Place = 0; Place < 256; ++Place) {
    if ((Bits[Place / 8] >> Place % 8 & 1) != 0) Down.insert(Place);
  }
  return Down;
}

void HoldRightEdge(QWidget& Window, const QImage& Whole) {
  Display* const To = Server();
  XWindowAttributes Is{};
  if (To == nullptr || XGetWindowAttributes(To, Window.winId(), &Is) == 0) return;
  XSetWindowAttributes Wanted{};
  Wanted.bit_gravity = NorthEastGravity;
  XChangeWindowAttributes(To, Window.winId(), CWBitGravity, &Wanted);
  // Until the new size is fixed nobody looks: a window manager that saw the change half done would give the frame
  // grips.
  XGrabServer(To);
  if (Is.visual->red_mask != 0xFF0000 || Is.depth < 24) return;
  QImage Picture = Whole.convertToFormat(QImage::Format_RGB32);
  XImage* const Sent =
      XCreateImage(To, Is.visual, static_cast<unsigned>(Is.depth), ZPixmap, 0, reinterpret_cast<char*>(Picture.bits()),
                   static_cast<unsigned>(Picture.width()), static_cast<unsigned>(Picture.height()), 32,
                   static_cast<int>(Picture.bytesPerLine()));
  const Pixmap Ground = XCreatePixmap(To, Window.winId(), static_cast<unsigned>(Picture.width()),
                                      static_cast<unsigned>(Picture.height()), static_cast<unsigned>(Is.depth));
  const GC Painter = XCreateGC(To, Ground, 0, nullptr);
  XPutImage(To, Ground, Painter, Sent, 0, 0, 0, 0, static_cast<unsigned>(Picture.width()),
            static_cast<unsigned>(Picture.height()));
  XSetWindowBackgroundPixmap(To, Window.winId(), Ground);  // the server keeps what it needs
  XFreeGC(To, Painter);
  XFreePixmap(To, Ground);
  Sent->data = nullptr;  // the picture's own
  XDestroyImage(Sent);
}

void AwaitSize(const QWidget& Window) {
  Display* const To = Server();
  if (To == nullptr) return;
  XUngrabServer(To);
  XFlush(To);
  if (!Window.isVisible()) return;
  const QSize Wanted = Window.size() * Window.devicePixelRatioF();
  XWindowAttributes Is{};
  for (int Waited = 0; Waited < LongestWait; Waited += LookEvery) {
    XSync(To, False);
    if (XGetWindowAttributes(To, Window.winId(), &Is) == 0) return;
    if (qAbs(Is.width - Wanted.width()) <= 1 && qAbs(Is.height - Wanted.height()) <= 1) break;
    QThread::msleep(LookEvery);
  }
  XSetWindowBackgroundPixmap(To, Window.winId(), None);
}

#else

std::optional<QMargins> FrameToCome(QWidget&) { return {}; }
bool HearKeysReleasedOnce() { return false; }
std::optional<std::set<quint32>> KeysDown() { return {}; }
void HoldRightEdge(QWidget&, const QImage&) {}
void AwaitSize(const QWidget&) {}

#endif

}  // namespace blunko
