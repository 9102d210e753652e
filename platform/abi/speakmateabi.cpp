// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <speakmate/iserviceplugin.h>

#include <QWidget>

/// Names every public class of the host's interface, so that its layout is in the debugging information.
struct SpeakmateInterface
{
    IServicePlugin *plugin;
    IService *service;
    Reply reply;
};

SpeakmateInterface speakmateInterface(IServicePlugin *plugin, IService *service)
{
    return {plugin, service, Reply()};
}
