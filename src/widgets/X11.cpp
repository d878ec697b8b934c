#include "widgets/X11.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QImage>
#include <QThread>
#include <QWidget>
#include <QWindow>

#ifdef TBK_X11
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <memory>
#include <xcb/xcb.h>
#endif

namespace blunko {

#ifdef TBK_X11

namespace {

constexpr int LongestWait = 100, LookEvery = 2;  // ms, for the window manager's answer

Display* Server() {
  const auto* X11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return X11 == nullptr ? nullptr : X11->display();
}

}  // namespace

QMargins FrameTold(const QWidget& Window) {
  Atom Type{};
  int Format{};
  unsigned long Count{}, Rest{};
  unsigned char* Data = nullptr;
  if (Display* const To = Server(); To != nullptr) {
    XGetWindowProperty(To, Window.winId(), XInternAtom(To, "_NET_FRAME_EXTENTS", False), 0, 4, False, XA_CARDINAL,
                       &Type, &Format, &Count, &Rest, &Data);
  }
  const std::unique_ptr<unsigned char, int (*)(void*)> Owned(Data, XFree);
  if (Format != 32 || Count != 4) return Window.windowHandle()->frameMargins();
  const auto* Sides = reinterpret_cast<const long*>(Data);  // left, right, top, bottom, in pixels
  return (QMarginsF(Sides[0], Sides[2], Sides[1], Sides[3]) / Window.devicePixelRatioF()).toMargins();
}

bool OffersFocus(const void* NativeEvent) {
  Display* const To = Server();
  const auto* const Message = static_cast<const xcb_client_message_event_t*>(NativeEvent);
  return To != nullptr && (Message->response_type & 0x7F) == XCB_CLIENT_MESSAGE &&
         Message->data.data32[0] == XInternAtom(To, "WM_TAKE_FOCUS", False);
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
  int Left{}, Top{};
  ::Window Child{};
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
  for (const QDeadlineTimer Limit(LongestWait); PlaceOnServer(Window).size() != Wanted.size();) {
    if (!Window.isVisible() || Limit.hasExpired()) break;
    QThread::msleep(LookEvery);
  }
  XSetWindowBackgroundPixmap(To, Window.winId(), None);
}

#else

QMargins FrameTold(const QWidget& Window) { return Window.windowHandle()->frameMargins(); }
bool OffersFocus(const void*) { return false; }
bool HearKeysReleasedOnce() { return false; }
std::optional<std::set<quint32>> KeysDown() { return {}; }
void HoldRightEdge(QWidget&, const QImage&) {}
QRect PlaceOnServer(const QWidget& Window) { return Window.geometry(); }
void AwaitPlace(const QWidget&, const QRect&) {}

#endif

}  // namespace blunko
