// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The one way the core tells the user of a fault in its data: a missing text key, a missing
// language file. The windowed program answers with a message box, the command line with a
// line on standard error; the computation goes on unless the message is fatal.

#include <QString>

class MessageSink
{
public:
    virtual ~MessageSink() = default;
    // Shows text under title; the caller goes on afterwards.
    virtual void warn(const QString &title, const QString &text) = 0;
    // Shows text under title, then ends the program (by default with exit status 1).
    virtual void fatal(const QString &title, const QString &text);
};

// The sink in force; by default one that writes "title: text" to standard error.
MessageSink &messageSink();
// Installs sink (not owned); nullptr restores the default.
void setMessageSink(MessageSink *sink);

// Installs a sink for the life of the object and restores the one before it.
class ScopedMessageSink
{
public:
    explicit ScopedMessageSink(MessageSink *sink);
    ~ScopedMessageSink();
    ScopedMessageSink(const ScopedMessageSink &) = delete;
    ScopedMessageSink &operator=(const ScopedMessageSink &) = delete;

private:
    MessageSink *m_previous;
};
