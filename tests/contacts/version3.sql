-- SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
-- SPDX-License-Identifier: LGPL-2.1-or-later
-- The tables as version 3 of the file had them: one statement per line, never to be changed.
CREATE TABLE person ( user_id TEXT PRIMARY KEY, account TEXT NOT NULL UNIQUE COLLATE NOCASE, name TEXT NOT NULL COLLATE NOCASE, kind INTEGER NOT NULL CHECK (kind IN (0, 1))) WITHOUT ROWID
CREATE INDEX person_by_name ON person(name)
CREATE TABLE contact ( owner_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, person_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, remark_name TEXT NOT NULL DEFAULT '' COLLATE NOCASE, is_friend INTEGER NOT NULL CHECK (is_friend IN (0, 1)), PRIMARY KEY (owner_id, person_id), CHECK (owner_id <> person_id)) WITHOUT ROWID
CREATE TABLE friend_request ( owner_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, person_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, PRIMARY KEY (owner_id, person_id), CHECK (owner_id <> person_id)) WITHOUT ROWID
CREATE TABLE conference ( id INTEGER PRIMARY KEY, conf_id TEXT NOT NULL UNIQUE, dial_number TEXT NOT NULL UNIQUE, title TEXT NOT NULL, host_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, start_msecs INTEGER NOT NULL, duration_msecs INTEGER NOT NULL CHECK (duration_msecs BETWEEN 0 AND 86400000), participant_limit INTEGER NOT NULL CHECK (participant_limit BETWEEN 2 AND 100), passcode TEXT NOT NULL DEFAULT '')
CREATE INDEX conference_by_host ON conference(host_id)
CREATE INDEX conference_by_start ON conference(start_msecs)
CREATE TABLE participant ( conference_id INTEGER NOT NULL REFERENCES conference(id) ON DELETE CASCADE, user_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, place INTEGER NOT NULL, attendance INTEGER NOT NULL CHECK (attendance IN (0, 1, 2)), start_msecs INTEGER NOT NULL, PRIMARY KEY (conference_id, user_id)) WITHOUT ROWID
CREATE INDEX participant_by_time ON participant(user_id, start_msecs)
CREATE TRIGGER conference_moved AFTER UPDATE OF start_msecs ON conference BEGIN UPDATE participant SET start_msecs = NEW.start_msecs WHERE conference_id = NEW.id; END
CREATE TABLE creation ( host_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, created_msecs INTEGER NOT NULL)
CREATE INDEX creation_by_time ON creation(host_id, created_msecs)
CREATE TABLE session ( id INTEGER PRIMARY KEY CHECK (id = 1), user_id TEXT REFERENCES person(user_id) ON DELETE SET NULL, seeded INTEGER NOT NULL DEFAULT 0 CHECK (seeded IN (0, 1)), engaged_elsewhere INTEGER NOT NULL DEFAULT 0 CHECK (engaged_elsewhere IN (0, 1)), friend_limit INTEGER NOT NULL DEFAULT 500 CHECK (friend_limit >= 0), creations_per_minute INTEGER NOT NULL DEFAULT 10 CHECK (creations_per_minute >= 0))
INSERT INTO session (id) VALUES (1)
CREATE TABLE performed_request ( id INTEGER PRIMARY KEY AUTOINCREMENT, request_id TEXT NOT NULL UNIQUE)
CREATE TABLE notice (id INTEGER PRIMARY KEY CHECK (id = 1), text TEXT NOT NULL)
CREATE INDEX contact_by_remark ON contact(owner_id, remark_name)
CREATE TABLE reminder_settings ( id INTEGER PRIMARY KEY CHECK (id = 1), is_on INTEGER NOT NULL CHECK (is_on IN (0, 1)), lead_minutes INTEGER NOT NULL)
CREATE TABLE shown_reminder ( user_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, conference_id INTEGER NOT NULL REFERENCES conference(id) ON DELETE CASCADE, kind INTEGER NOT NULL CHECK (kind IN (1, 2)), start_msecs INTEGER NOT NULL, PRIMARY KEY (conference_id, user_id, kind, start_msecs)) WITHOUT ROWID
CREATE INDEX shown_reminder_by_user ON shown_reminder(user_id)
CREATE TABLE untold_invitation ( user_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, conference_id INTEGER NOT NULL REFERENCES conference(id) ON DELETE CASCADE, PRIMARY KEY (user_id, conference_id)) WITHOUT ROWID
CREATE INDEX untold_invitation_by_conference ON untold_invitation(conference_id)
CREATE TABLE untold_request ( user_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, asker_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE, PRIMARY KEY (user_id, asker_id)) WITHOUT ROWID
CREATE INDEX untold_request_by_asker ON untold_request(asker_id)
CREATE TRIGGER invited AFTER INSERT ON participant WHEN NEW.attendance = 0 AND NEW.user_id <> (SELECT host_id FROM conference WHERE id = NEW.conference_id) BEGIN INSERT OR IGNORE INTO untold_invitation VALUES (NEW.user_id, NEW.conference_id); END
CREATE TRIGGER invited_again AFTER UPDATE OF attendance ON participant WHEN OLD.attendance = 2 AND NEW.attendance = 0 AND NEW.user_id <> (SELECT host_id FROM conference WHERE id = NEW.conference_id) BEGIN INSERT OR IGNORE INTO untold_invitation VALUES (NEW.user_id, NEW.conference_id); END
CREATE TRIGGER asked AFTER INSERT ON friend_request BEGIN INSERT OR IGNORE INTO untold_request VALUES (NEW.person_id, NEW.owner_id); END
PRAGMA user_version = 3
