// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/MessageSink.h"

#include <cstdio>
#include <cstdlib>

namespace {
class StdErrSink final : public MessageSink
{
public:
    void warn(const QString &title, const QString &text) override
    {
        const QByteArray line = (title + QStringLiteral(": ") + text + QLatin1Char('\n')).toUtf8();
        std::fputs(line.constData(), stderr);
        std::fflush(stderr);
    }
};

StdErrSink g_default;
MessageSink *g_sink = nullptr;
} // namespace

void MessageSink::fatal(const QString &title, const QString &text)
{
    warn(title, text);
    std::exit(1);
}

MessageSink &messageSink() { return g_sink ? *g_sink : g_default; }

void setMessageSink(MessageSink *sink) { g_sink = sink; }

ScopedMessageSink::ScopedMessageSink(MessageSink *sink) : m_previous(g_sink) { g_sink = sink; }

ScopedMessageSink::~ScopedMessageSink() { g_sink = m_previous; }
