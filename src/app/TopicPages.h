// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The one place that knows every subsystem's pages: it registers them with the topic output, and
// hands the command line the writer of the marriage report that those pages draw.

// Registers every topic page of the program; safe to call more than once.
void RegisterTopicPages();
