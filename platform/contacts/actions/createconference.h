// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/**
 * "Create Conference" {"members", "startTime"}: now without a start time or with 0, else scheduled. A name
 * that several people have, or the only name when nobody has it, creates nothing and says so with "Return";
 * otherwise those who were found are invited, as many as the conference takes.
 */
QJsonObject createConference(const ActionContext &context, const RequestParameters &parameters);
