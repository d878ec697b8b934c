#include "widgets/X11.h"

#include <QGuiApplication>
#include <QImage>
#include <QThread>
#include <QWidget>
#include <QWindow>

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

std::optional<QMargins> FrameTold(const QWidget& Window) {
  Display* const To = Server();
  if (To == nullptr || Window.windowHandle() == nullptr) return {};
  const auto Found = Property(To, Window.winId(), "_NET_FRAME_EXTENTS", XA_CARDINAL, 4);
  if (Found == nullptr) return {};
  const auto* Sides = reinterpret_cast<const long*>(Found.get());  // left, right, top, bottom, in pixels
  return (QMarginsF(Sides[0], Sides[2], Sides[1], Sides[3]) / Window.devicePixelRatioF()).toMargins();
}

QMargins FrameToCome(const QWidget& Window) {
  constexpr const char* IsSilent = "managerIsSilent";  // of the application, which has the connection
  Display* const To = Server();
  if (To == nullptr || qGuiApp->property(IsSilent).toBool()) return {};
  const ::Window Root = DefaultRootWindow(To);
  if (Property(To, Root, "_NET_SUPPORTING_WM_CHECK", XA_WINDOW, 1) == nullptr) return {};
  XEvent Question{};
  Question.xclient.type = ClientMessage;
  Question.xclient.window = Window.winId();
  Question.xclient.message_type = XInternAtom(To, "_NET_REQUEST_FRAME_EXTENTS", False);
  Question.xclient.format = 32;
  XSendEvent(To, Root, False, SubstructureRedirectMask | SubstructureNotifyMask, &Question);
  for (int Waited = 0; Waited < LongestWait; Waited += LookEvery) {
    XSync(To, False);
    if (const auto Told = FrameTold(Window)) return *Told;
    QThread::msleep(LookEvery);
  }
  qGuiApp->setProperty(IsSilent, true);
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

QRect PlaceOnServer(const QWidget& Window) {
  Display* const To = Server();
  XWindowAttributes Is{};
  int Left = 0, Top = 0;
  ::Window Child = None;
  if (To == nullptr || XGetWindowAttributes(To, Window.winId(), &Is) == 0) return Window.geometry();
  XTranslateCoordinates(To, Window.winId(), Is.root, 0, 0, &Left, &Top, &Child);
  return {Left, Top, Is.width, Is.height};
}

void AwaitPlace(const QWidget& Window, const QRect& Wanted) {
  Display* const To = Server();
  if (To == nullptr) return;
  XMoveResizeWindow(To, Window.winId(), Wanted.x(), Wanted.y(), static_cast<unsigned>(Wanted.width()),
                    static_cast<unsigned>(Wanted.height()));
  XUngrabServer(To);
  XFlush(To);
  for (int Waited = 0; Window.isVisible() && Waited < LongestWait; Waited += LookEvery) {
    XSync(To, False);
    if (PlaceOnServer(Window).size() == Wanted.size()) break;
    QThread::msleep(LookEvery);
  }
  XSetWindowBackgroundPixmap(To, Window.winId(), None);
}

#else

std::optional<QMargins> FrameTold(const QWidget&) { return {}; }
QMargins FrameToCome(const QWidget&) { return {}; }
bool HearKeysReleasedOnce() { return false; }
std::optional<std::set<quint32>> KeysDown() { return {}; }
void HoldRightEdge(QWidget&, const QImage&) {}
QRect PlaceOnServer(const QWidget& Window) { return Window.geometry(); }
void AwaitPlace(const QWidget&, const QRect&) {}

#endif

}  // namespace blunko
