#include "platform/desktop/WindowList.h"

#include <xcb/res.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/ProcessIdentity.h"

namespace lurkwell {
namespace {

constexpr std::uint32_t kMostWindows = 4096;
// So that answers never pile up while we are still writing.
constexpr std::size_t kWindowsPerBatch = 64;
constexpr std::uint32_t kTextWords = 256;

/// The questions about one window, sent but not answered yet.
struct WindowQuestions {
  xcb_get_property_cookie_t windowClass, title, type, parent, pid, machine, state, netState;
};

WindowQuestions Ask(XConnection& connection, xcb_window_t window) {
  const auto ask = [&](xcb_atom_t property, std::uint32_t words) {
    return connection.AskProperty(window, property, words);
  };
  return {ask(XCB_ATOM_WM_CLASS, kTextWords),
          ask(connection.Atom(XAtom::kNetName), kTextWords),
          ask(connection.Atom(XAtom::kWindowType), 16),
          ask(XCB_ATOM_WM_TRANSIENT_FOR, 1),
          ask(connection.Atom(XAtom::kNetPid), 1),
          ask(XCB_ATOM_WM_CLIENT_MACHINE, kTextWords),
          ask(connection.Atom(XAtom::kState), 2),
          ask(connection.Atom(XAtom::kNetState), 32)};
}

/// Of the types that a window gives, the first that is known counts. Those that are not among these
/// are the ones that serve another window or the desktop.
bool IsOwnKind(const XConnection& connection, const std::vector<std::uint32_t>& types) {
  if (types.empty()) return true;
  return std::ranges::any_of(
      std::array{XAtom::kTypeNormal, XAtom::kTypeDialog, XAtom::kTypeUtility},
      [&](XAtom kind) { return types.front() == connection.Atom(kind); });
}

bool IsIconified(const XConnection& connection, const std::vector<std::uint32_t>& state,
                 const std::vector<std::uint32_t>& netState) {
  constexpr std::uint32_t kMinimised = 3;
  return (!state.empty() && state.front() == kMinimised) ||
         std::ranges::find(netState, connection.Atom(XAtom::kStateHidden)) != netState.end();
}

std::int32_t PidFrom(const std::vector<std::uint32_t>& words) {
  const bool fits = !words.empty() && words.front() > 0 && words.front() <= INT32_MAX;
  return fits ? static_cast<std::int32_t>(words.front()) : kInvalidPID;
}

void SplitClass(const std::string& text, DesktopWindow& window) {
  const auto end = std::min(text.find('\0'), text.size());
  window.instance = text.substr(0, end);
  window.windowClass = end < text.size() ? text.substr(end + 1) : std::string();
  const auto classEnd = window.windowClass.find('\0');
  if (classEnd != std::string::npos) window.windowClass.resize(classEnd);
}

/// Collects all the answers.
void TakeAnswers(XConnection& connection, const WindowQuestions& asked, const std::string& hostName,
                 XConnection::Deadline deadline, DesktopWindow& window) {
  const auto answer = [&](xcb_get_property_cookie_t cookie) {
    return connection.Wait<xcb_get_property_reply_t>(cookie, deadline);
  };
  const auto windowClass = answer(asked.windowClass);
  const auto title = answer(asked.title);
  const auto type = answer(asked.type);
  const auto parent = PropertyWords(answer(asked.parent).get());
  const auto pid = answer(asked.pid);
  const auto machine = answer(asked.machine);
  const auto state = answer(asked.state);
  const auto netState = answer(asked.netState);
  SplitClass(PropertyText(windowClass.get()), window);
  window.title = PropertyText(title.get());
  window.isOwnKind = IsOwnKind(connection, PropertyWords(type.get()));
  const bool isOnItsOwn =
      parent.empty() || parent.front() == 0 || parent.front() == connection.Root();
  window.isOrdinary = isOnItsOwn && window.isOwnKind;
  const bool isLocal = PropertyText(machine.get()) == hostName;
  window.pid = isLocal ? PidFrom(PropertyWords(pid.get())) : kInvalidPID;
  window.isIconified =
      IsIconified(connection, PropertyWords(state.get()), PropertyWords(netState.get()));
  window.isThere = windowClass && title && type && state && netState;
}

}  // namespace

WindowList::WindowList(XConnection& connection, std::string hostName)
    : mConnection(connection), mHostName(std::move(hostName)) {
  mConnection.Watch(mConnection.Root());
}

bool WindowList::Refresh() {
  mAnyChange = false;
  for (const auto& change : mConnection.TakeChanges()) TakeChange(change);
  if (mRootChanged) ReadRoot();
  const auto toRead = NewOrChanged();
  for (std::size_t i = 0; i < toRead.size() && !mConnection.IsLost(); i += kWindowsPerBatch) {
    const auto begin = toRead.begin() + static_cast<std::ptrdiff_t>(i);
    const auto count = std::min(kWindowsPerBatch, toRead.size() - i);
    ReadWindows({begin, begin + static_cast<std::ptrdiff_t>(count)});
  }
  mChanged.clear();
  return mAnyChange || !toRead.empty();
}

void WindowList::TakeChange(const XChange& change) {
  if (change.window == mConnection.Root()) {
    mRootChanged = mRootChanged || change.property == mConnection.Atom(XAtom::kClientList) ||
                   change.property == mConnection.Atom(XAtom::kClientListStacking) ||
                   change.property == mConnection.Atom(XAtom::kSupported);
    return;
  }
  const auto found = mWindows.find(change.window);
  if (found == mWindows.end()) return;
  if (change.property == XCB_ATOM_NONE) {
    // Its id may be given to another window at once.
    mWindows.erase(found);
    mRootChanged = mAnyChange = true;
  } else if (change.property == mConnection.Atom(XAtom::kWindowIcon)) {
    ++found->second.iconChanges;
    mAnyChange = true;
  } else if (change.property == XCB_ATOM_WM_CLASS || change.property == XCB_ATOM_WM_TRANSIENT_FOR ||
             change.property == XCB_ATOM_WM_CLIENT_MACHINE ||
             change.property == mConnection.Atom(XAtom::kNetPid) ||
             change.property == mConnection.Atom(XAtom::kWindowType) ||
             change.property == mConnection.Atom(XAtom::kState) ||
             change.property == mConnection.Atom(XAtom::kNetState)) {
    mChanged.insert(change.window);
  }
}

void WindowList::ReadRoot() {
  const auto deadline = XConnection::BatchDeadline();
  const auto ask = [&](XAtom atom) {
    return mConnection.AskProperty(mConnection.Root(), mConnection.Atom(atom), kMostWindows);
  };
  const auto list = ask(XAtom::kClientList);
  const auto stacking = ask(XAtom::kClientListStacking);
  const auto supported = ask(XAtom::kSupported);
  const auto words = [&](xcb_get_property_cookie_t cookie) {
    return PropertyWords(mConnection.Wait<xcb_get_property_reply_t>(cookie, deadline).get());
  };
  auto order = words(list);
  auto newStacking = words(stacking);
  auto newSupported = words(supported);
  if (mConnection.IsLost()) return;
  mRootChanged = false;
  mOrder = std::move(order);
  mStacking = std::move(newStacking);
  mSupported = std::move(newSupported);
  if (DropOldWindows()) mAnyChange = true;
}

bool WindowList::DropOldWindows() {
  const std::unordered_set<xcb_window_t> present(mOrder.begin(), mOrder.end());
  return std::erase_if(mWindows, [&](const auto& known) {
           // What is not there is asked again when there is a new list.
           return !present.contains(known.first) || !known.second.isThere;
         }) > 0;
}

std::vector<xcb_window_t> WindowList::NewOrChanged() const {
  std::vector<xcb_window_t> windows;
  for (const xcb_window_t window : mOrder) {
    if (!mWindows.contains(window) || mChanged.contains(window)) windows.push_back(window);
  }
  return windows;
}

/// Watching comes before reading, so that no change falls between the two.
void WindowList::ReadWindows(const std::vector<xcb_window_t>& windows) {
  const auto deadline = XConnection::BatchDeadline();
  std::vector<WindowQuestions> questions;
  for (const xcb_window_t window : windows) {
    if (!mWindows.contains(window)) mConnection.Watch(window);
    questions.push_back(Ask(mConnection, window));
  }
  for (std::size_t i = 0; i < windows.size(); ++i) {
    DesktopWindow window;
    window.id = windows[i];
    const auto known = mWindows.find(window.id);
    if (known != mWindows.end()) window.iconChanges = known->second.iconChanges;
    TakeAnswers(mConnection, questions[i], mHostName, deadline, window);
    mWindows[window.id] = std::move(window);
  }
  if (mConnection.TellsClientPids()) ReadPids(windows);
}

/// The server names the client of each answer, not the window.
void WindowList::ReadPids(const std::vector<xcb_window_t>& windows) {
  if (mConnection.IsLost()) return;
  std::vector<xcb_res_client_id_spec_t> asked;
  asked.reserve(windows.size());
  for (const xcb_window_t window : windows) {
    asked.push_back({window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID});
  }
  const auto reply = mConnection.Wait<xcb_res_query_client_ids_reply_t>(
      xcb_res_query_client_ids_unchecked(mConnection.Raw(),
                                         static_cast<std::uint32_t>(asked.size()), asked.data()),
      XConnection::BatchDeadline());
  if (!reply) return;
  std::unordered_map<std::uint32_t, std::int32_t> pids;
  for (auto i = xcb_res_query_client_ids_ids_iterator(reply.get()); i.rem > 0;
       xcb_res_client_id_value_next(&i)) {
    if (xcb_res_client_id_value_value_length(i.data) < 1) continue;
    const std::uint32_t pid = *xcb_res_client_id_value_value(i.data);
    const auto& [about, length] = *i.data;
    if (pid > 0 && pid <= INT32_MAX) pids[about.client] = static_cast<std::int32_t>(pid);
  }
  for (const xcb_window_t id : windows) {
    const auto window = mWindows.find(id);
    const auto pid = pids.find(id & ~mConnection.ResourceMask());
    if (window != mWindows.end() && pid != pids.end()) window->second.pid = pid->second;
  }
}

std::vector<const DesktopWindow*> WindowList::All() const {
  std::vector<const DesktopWindow*> windows;
  for (const xcb_window_t id : mOrder) {
    if (const auto found = mWindows.find(id); found != mWindows.end() && found->second.isThere) {
      windows.push_back(&found->second);
    }
  }
  return windows;
}

bool WindowList::IsSupported(XAtom message) const {
  return std::ranges::find(mSupported, mConnection.Atom(message)) != mSupported.end();
}

XSession::XSession(std::string display, std::string hostName,
                   std::chrono::milliseconds retryInterval)
    : mHostName(std::move(hostName)), mLink(std::move(display), retryInterval) {}

bool XSession::Refresh() {
  auto* connection = mLink.Connect();
  if (connection == nullptr) return false;
  if (!mWindows) mWindows = std::make_unique<WindowList>(*connection, mHostName);
  const bool changed = mWindows->Refresh();
  if (!connection->IsLost()) return changed;
  mWindows.reset();
  mLink.Drop();
  return true;
}

namespace {

constexpr std::uint32_t kMostIconWords = 1U << 20;
constexpr std::uint32_t kLargestSide = 1024;
constexpr std::size_t kMostWindowsAsked = 4;

bool IsBetter(const WindowIcon& icon, const WindowIcon& than, int size) {
  const int side = std::min(icon.width, icon.height);
  const int otherSide = std::min(than.width, than.height);
  return otherSide < size ? side > otherSide : side >= size && side < otherSide;
}

}  // namespace

std::vector<std::uint32_t> ReadWindowIcons(XConnection& connection,
                                           const std::vector<xcb_window_t>& windows) {
  for (std::size_t i = 0; i < std::min(windows.size(), kMostWindowsAsked); ++i) {
    const auto cookie =
        connection.AskProperty(windows[i], connection.Atom(XAtom::kWindowIcon), kMostIconWords);
    auto icons = PropertyWords(
        connection.Wait<xcb_get_property_reply_t>(cookie, XConnection::BatchDeadline()).get());
    if (!icons.empty()) return icons;
  }
  return {};
}

std::optional<WindowIcon> BestWindowIcon(std::span<const std::uint32_t> icons, int size) {
  std::optional<WindowIcon> best;
  while (icons.size() > 2) {
    const std::uint32_t width = icons[0];
    const std::uint32_t height = icons[1];
    icons = icons.subspan(2);
    if (width == 0 || height == 0 || width > kLargestSide || height > kLargestSide) break;
    const std::size_t pixels = std::size_t{width} * height;
    if (pixels > icons.size()) break;
    const WindowIcon icon{static_cast<int>(width), static_cast<int>(height), icons.first(pixels)};
    if (!best || IsBetter(icon, *best, size)) best = icon;
    icons = icons.subspan(pixels);
  }
  return best;
}

}  // namespace lurkwell
