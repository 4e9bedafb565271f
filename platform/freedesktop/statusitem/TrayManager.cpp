#include "platform/freedesktop/statusitem/TrayManager.h"

#include <QGuiApplication>

#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace tambrelle {

namespace {

/// Replies of the X server come from malloc.
struct FreeReply {
    void operator()(void* reply) const { std::free(reply); } // NOLINT(cppcoreguidelines-no-malloc)
};
template <class T>
using Reply = std::unique_ptr<T, FreeReply>;

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

constexpr std::uint32_t xembedVersion = 0;
constexpr std::uint32_t xembedHidden = 0;
constexpr std::uint32_t xembedMapped = 1;
constexpr std::uint32_t requestDock = 0;

} // namespace

TrayManager::TrayManager(QObject* parent) : QObject(parent) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // The screen in memory offers the interface of X11 as well, with nothing behind it.
    if (x11 == nullptr || x11->connection() == nullptr)
        return;
    connection = x11->connection();
    // The first screen is the only one that desktops of today have.
    root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    selection = atom(connection, "_NET_SYSTEM_TRAY_S0");
    announcement = atom(connection, "MANAGER");
    listenTo(root, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    qGuiApp->installNativeEventFilter(this);
    look();
}

TrayManager::~TrayManager() {
    if (connection != nullptr)
        qGuiApp->removeNativeEventFilter(this);
}

void TrayManager::listenTo(std::uint32_t window, std::uint32_t events) const {
    const Reply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window), nullptr));
    if (!attributes)
        return;
    // The toolkit listens to the same windows on the same connection; its choice must stay.
    const std::uint32_t mask = attributes->your_event_mask | events;
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &mask);
}

void TrayManager::look() {
    const Reply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr));
    manager = owner ? owner->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (manager != XCB_WINDOW_NONE)
        listenTo(manager, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    xcb_flush(connection);
}

std::optional<QColor> TrayManager::foreground() const {
    if (!isPresent())
        return std::nullopt;
    const xcb_atom_t colours = atom(connection, "_NET_SYSTEM_TRAY_COLORS");
    const auto cookie = xcb_get_property(connection, 0, manager, colours, XCB_ATOM_CARDINAL, 0, 3);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 12)
        return std::nullopt;
    // Three 16-bit intensities, each in a word of its own.
    const auto* rgb = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return QColor::fromRgba64(static_cast<quint16>(rgb[0]), static_cast<quint16>(rgb[1]),
                              static_cast<quint16>(rgb[2]));
}

void TrayManager::dock(std::uint32_t window) const {
    // A tray that shows the window itself, ahead of the toolkit, would leave the toolkit at a loss.
    setEmbeddingInfo(window, xembedHidden);
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = manager;
    request.type = atom(connection, "_NET_SYSTEM_TRAY_OPCODE");
    request.data.data32[0] = XCB_CURRENT_TIME;
    request.data.data32[1] = requestDock;
    request.data.data32[2] = window;
    xcb_send_event(connection, 0, manager, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&request));
    xcb_flush(connection);
}

void TrayManager::announceShown(std::uint32_t window) const {
    setEmbeddingInfo(window, xembedMapped);
    xcb_flush(connection);
}

void TrayManager::setEmbeddingInfo(std::uint32_t window, std::uint32_t flags) const {
    const std::array<std::uint32_t, 2> info{xembedVersion, flags};
    const xcb_atom_t property = atom(connection, "_XEMBED_INFO");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, property, 32, info.size(),
                        info.data());
}

std::optional<QColor> TrayManager::groundUnder(std::uint32_t window) const {
    const Reply<xcb_translate_coordinates_reply_t> place(xcb_translate_coordinates_reply(
        connection, xcb_translate_coordinates(connection, window, root, 1, 1), nullptr));
    if (!place)
        return std::nullopt;
    constexpr std::uint32_t allPlanes = ~0U;
    const auto cookie = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, root, place->dst_x, place->dst_y,
                                      1, 1, allPlanes);
    const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(connection, cookie, nullptr));
    // Screens of these depths have a byte for each colour; what others show has to be looked up.
    if (!image || (image->depth != 24 && image->depth != 32) || xcb_get_image_data_length(image.get()) < 4)
        return std::nullopt;
    const std::uint8_t* bgr = xcb_get_image_data(image.get());
    return QColor(bgr[2], bgr[1], bgr[0]);
}

std::optional<QSize> TrayManager::grantedSize(std::uint32_t window) const {
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
    if (!tree || tree->parent == root)
        return std::nullopt;
    const Reply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    return geometry ? std::optional<QSize>({geometry->width, geometry->height}) : std::nullopt;
}

std::optional<QRect> TrayManager::barAround(std::uint32_t window) const {
    std::uint32_t outermost = window;
    for (;;) {
        const Reply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, outermost), nullptr));
        if (!tree)
            return std::nullopt;
        if (tree->parent == root)
            break;
        outermost = tree->parent;
    }
    if (outermost == window)
        return std::nullopt;
    const Reply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, outermost), nullptr));
    return geometry ? std::optional<QRect>(QRect(geometry->x, geometry->y, geometry->width, geometry->height))
                    : std::nullopt;
}

bool TrayManager::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    constexpr std::uint8_t sentByClient = 0x80;
    const auto type = static_cast<std::uint8_t>(event->response_type & ~sentByClient);
    bool affected = false;
    if (type == XCB_CLIENT_MESSAGE) {
        const auto* client = reinterpret_cast<const xcb_client_message_event_t*>(event);
        affected = client->type == announcement && client->data.data32[1] == selection;
    } else if (type == XCB_DESTROY_NOTIFY) {
        affected =
            reinterpret_cast<const xcb_destroy_notify_event_t*>(event)->window == manager && manager != 0;
    }
    if (affected) {
        look();
        emit changed();
    }
    return false;
}

} // namespace tambrelle
