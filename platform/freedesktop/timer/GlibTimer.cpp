#include "platform/freedesktop/timer/GlibTimer.h"

#include <QAbstractEventDispatcher>

#include <glib.h>
#include <utility>

namespace tambrelle {

namespace {

[[gnu::hot]] gboolean dispatch(GSource* /*source*/, GSourceFunc callback, gpointer data) {
    return callback(data);
}

// Ready by its time alone: nothing to prepare or to check.
GSourceFuncs timerFunctions{.prepare = nullptr,
                            .check = nullptr,
                            .dispatch = dispatch,
                            .finalize = nullptr,
                            .closure_callback = nullptr,
                            .closure_marshal = nullptr};

} // namespace

GlibTimer::~GlibTimer() = default;

bool GlibTimer::isServed() {
    const QAbstractEventDispatcher* loop = QAbstractEventDispatcher::instance();
    return loop != nullptr && loop->inherits("QEventDispatcherGlib");
}

void GlibTimer::start(std::chrono::milliseconds each, std::function<void()> next) {
    interval = each;
    action = std::move(next);
    source.reset(g_source_new(&timerFunctions, sizeof(GSource)));
    const auto call = [](gpointer timer) -> gboolean {
        static_cast<GlibTimer*>(timer)->fire();
        return G_SOURCE_CONTINUE;
    };
    g_source_set_callback(source.get(), call, this, nullptr);
    due = std::chrono::microseconds{g_get_monotonic_time()} + interval;
    g_source_set_ready_time(source.get(), due.count());
    g_source_attach(source.get(), nullptr);
}

[[gnu::hot]] std::chrono::microseconds GlibTimer::nextDue(std::chrono::microseconds due,
                                                          std::chrono::microseconds now,
                                                          std::chrono::microseconds interval) {
    const auto next = due + interval;
    return next > now ? next : now + interval;
}

[[gnu::hot]] void GlibTimer::fire() {
    due = nextDue(due, std::chrono::microseconds{g_source_get_time(source.get())}, interval);
    // Within the firing, for which GLib sets the source aside: elsewhere this would wake the loop.
    g_source_set_ready_time(source.get(), due.count());
    action();
}

void GlibTimer::Remove::operator()(_GSource* source) const {
    g_source_destroy(source);
    g_source_unref(source);
}

} // namespace tambrelle
