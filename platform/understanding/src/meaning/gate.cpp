// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/gate.h"

#include "meaning/outcome.h"
#include "text/chinesenumber.h"
#include "text/rulefile.h"
#include "text/scan.h"
#include "words/lexicon.h"

#include <QHash>

#include <algorithm>

namespace understanding {

namespace {

/// What a row of gate.tsv says about an intent.
struct Allowed
{
    WordClasses anchors; ///< make a clause the order's
    WordClasses beside;  ///< may stand beside them
    QString light;       ///< characters that change nothing
};

WordClasses classesNamed(const QString &names)
{
    WordClasses classes;
    const QStringList all = names.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString name : all) {
        if (name == QLatin1String("-")) {
            continue;
        }
        const WordClass wordClass = wordClassNamed(name.replace(QLatin1Char('-'), QLatin1Char(' ')));
        if (wordClass == WordClass::Count) {
            qFatal("gate.tsv: there is no section called %s.", qPrintable(name));
        }
        classes.add(wordClass);
    }
    return classes;
}

Allowed allowedFor(const QString &intent)
{
    static const QHash<QString, Allowed> rows = [] {
        QHash<QString, Allowed> loaded;
        Allowed everywhere;
        const QStringList lines = ruleLines(QStringLiteral("gate.tsv"));
        for (const QString &line : lines) {
            const QStringList fields = line.split(QLatin1Char('\t'));
            Allowed row{classesNamed(fields.at(1)), classesNamed(fields.at(2)), fields.at(3)};
            row.beside.add(row.anchors | everywhere.beside);
            row.light += everywhere.light;
            if (fields.at(0) == QLatin1String("*")) {
                everywhere = row;
            }
            loaded.insert(fields.at(0), row);
        }
        return loaded;
    }();
    return rows.value(intent);
}

/// A part of the sentence between punctuation.
class Clause final
{
public:
    Clause(const Reading &reading, const QString &intent, std::size_t begin, std::size_t end)
        : m_reading(reading)
        , m_tokens(reading.tokens())
        , m_intent(intent)
        , m_allowed(allowedFor(intent))
        , m_begin(begin)
        , m_end(end)
        , m_isQuery(intent == QLatin1String(QueryConference))
    {
    }

    bool isOrder() const { return has(m_allowed.anchors); }

    /// 第7次迭代会，...: only the name of the conference, which need not be understood.
    bool isTitle() const
    {
        WordClasses verbs = m_allowed.anchors;
        verbs.remove(WordClass::Conference);
        return !has(verbs);
    }

    bool isRequested() const { return has(WordClass::Request); }
    bool callsSomebody() const
    {
        return any([&](std::size_t at) {
            return m_tokens[at].inName && m_reading.isCalledAt(m_tokens[at].position);
        });
    }
    bool isSupposed() const { return has(WordClass::Framed); }

    bool isRefused() const
    {
        return isSupposed() || isNegated() || isSomebodyElses() || (!m_isQuery && has(WordClass::Reported)) ||
               isQuestion();
    }

    /// 结束了会议, 会议结束了: done, unless it is asked for (把会议关了, 散了吧).
    bool isFinished() const
    {
        constexpr WordClasses asking = WordClass::Query | WordClass::Question | WordClass::QuestionParticle |
                                       WordClass::AskedTime | WordClass::Schedule | WordClass::Next;
        if (has(WordClass::Request) || (m_isQuery && has(asking))) {
            return false;
        }
        return any([&](std::size_t at) {
            const Token &token = m_tokens[at];
            if (!token.isAny(m_allowed.anchors) && !token.is(WordClass::OpenParticle)) {
                return false;
            }
            static const QString done = QStringLiteral("了过");
            const QString &text = m_reading.sentence().text();
            return done.contains(text.at(token.end() - 1)) ||
                   (token.end() < text.size() && done.contains(text.at(token.end())));
        });
    }

    bool isUnderstood() const
    {
        return !hasOtherSubject() && !isPast() && !isAtOtherTime() && !isAboutRoom() &&
               !any([&](std::size_t at) { return !isExplained(at); });
    }

private:
    template <typename Holds>
    bool any(Holds holds) const
    {
        for (std::size_t at = m_begin; at < m_end; ++at) {
            if (!m_tokens[at].inTopic && holds(at)) {
                return true;
            }
        }
        return false;
    }

    bool has(WordClasses classes) const
    {
        return any([&](std::size_t at) { return m_tokens[at].isAny(classes) && !m_tokens[at].inName; });
    }

    /// 不, 别 ... before what would be done, wherever between; 密码不用 negates nothing.
    bool isNegated() const
    {
        bool negated = false;
        return any([&](std::size_t at) {
            negated = negated || m_tokens[at].is(WordClass::Negation);
            return negated && m_tokens[at].isAny(m_allowed.anchors);
        });
    }

    /// 王磊离开会议了, 他结束了会议, 谁邀请了张三: somebody else stands before the verb, called by no word.
    bool isSomebodyElses() const
    {
        bool called = false;
        return any([&](std::size_t at) {
            const Token &token = m_tokens[at];
            constexpr WordClasses calling = WordClass::Trigger | WordClass::Pull | WordClass::NameLabel |
                                            WordClass::Separator | WordClass::StrongOpen |
                                            WordClass::WeakOpen | WordClass::GoverningOpen | WordClass::Join |
                                            WordClass::Close | WordClass::Add | WordClass::AccountLabel;
            const bool owner = charAt(m_reading.sentence().text(), token.end()) == QChar(u'的');
            if (token.is(WordClass::Actor) && !called && !owner) {
                return true;
            }
            called = called || token.isAny(calling);
            return false;
        });
    }

    /// 张伟明天三点开会: somebody whom no word calls, right before what is done.
    bool hasOtherSubject() const
    {
        std::size_t subject = m_end;
        return !m_isQuery && m_reading.names().size() == 1 && any([&](std::size_t at) {
            const Token &token = m_tokens[at];
            if (token.inName) {
                subject = m_reading.isCalledAt(token.position) ? m_end : at;
            }
            return subject < at && !token.inName && token.isAny(m_allowed.anchors) &&
                   token.isAny(WordClass::StrongOpen | WordClass::WeakOpen | WordClass::Close |
                               WordClass::Join | WordClass::Invite | WordClass::Add);
        });
    }

    /// 昨天和张三开会: nobody opens a conference of a day that is past.
    bool isPast() const
    {
        return m_intent == QLatin1String(CreateConference) && any([&](std::size_t at) {
                   const TimeExpression &time = m_tokens[at].time;
                   return time.day == TimeExpression::Day::Relative && time.dayOffset < 0;
               });
    }

    /// 320号上午九点: a conference is joined now, so the number may be a date.
    bool isAtOtherTime() const
    {
        return m_intent == QLatin1String(EnterConferenceById) && m_reading.clockCount() > 0;
    }

    /// 帮我订个会议室: a room is no conference.
    bool isAboutRoom() const
    {
        const QString &text = m_reading.sentence().text();
        const auto isRoom = [&](const Token &token) {
            return text.at(token.end() - 1) == QChar(u'室') || charAt(text, token.end()) == QChar(u'室');
        };
        return m_intent == QLatin1String(CreateConference) && any([&](std::size_t at) {
                   return m_tokens[at].is(WordClass::Conference) && isRoom(m_tokens[at]);
               }) &&
               !any([&](std::size_t at) {
                   return m_tokens[at].is(WordClass::Conference) && !isRoom(m_tokens[at]);
               });
    }

    /// 会议要密码吗 asks; 能帮我开个会吗 is polite.
    bool isQuestion() const
    {
        constexpr WordClasses asking =
            WordClass::Question | WordClass::QuestionParticle | WordClass::AskedTime | WordClass::HowTo;
        return !m_isQuery && has(asking) && !has(WordClass::Request);
    }

    /// 腾出手来帮我...: what leads up to the request does not matter.
    bool isPreamble(std::size_t at) const
    {
        for (std::size_t later = at + 1; later < qMin(m_end, at + 3); ++later) {
            if (m_tokens[later].is(WordClass::Request) && m_tokens[later].length > 1 &&
                charAt(m_reading.sentence().text(), m_tokens[later].position) == QChar(u'帮')) {
                return true;
            }
        }
        return false;
    }

    /// 下 in 明天下三点, 午 in 开午会: what is left of a time that was not read whole.
    bool isPieceOfTime(std::size_t at) const
    {
        const Token &token = m_tokens[at];
        if (token.inName) {
            return false;
        }
        static const QString pieces = QStringLiteral("午点刻半");
        const QString text = m_reading.sentence().text().mid(token.position, token.length);
        if (token.kind == Token::Kind::Other) {
            return std::any_of(text.cbegin(), text.cend(), [&](QChar character) {
                return pieces.contains(character) || digitValue(character) >= 0;
            });
        }
        const bool behindTime = at == m_begin || m_tokens[at - 1].kind == Token::Kind::Time;
        const bool beforeTime = behindTime && at + 1 < m_end && m_tokens[at + 1].kind == Token::Kind::Time &&
                                m_tokens[at + 1].position == token.end();
        return beforeTime && (text == QStringLiteral("下") || text == QStringLiteral("上"));
    }

    bool isExplained(std::size_t at) const
    {
        const Token &token = m_tokens[at];
        if (isPieceOfTime(at)) {
            return false;
        }
        switch (token.kind) {
        case Token::Kind::Word:
            return token.inName || token.isAny(m_allowed.beside) || isNothing(token) || isDescription(at);
        case Token::Kind::Other:
            return token.inName || isNothing(token) || isDescription(at) || isPreamble(at);
        case Token::Kind::Number: // a date or an hour that was cut
            return m_intent != QLatin1String(CreateConference) || token.inName || isDescription(at);
        case Token::Kind::Duration: // how long a new one takes, or how long one took
            return m_intent == QLatin1String(CreateConference);
        default:
            return true;
        }
    }

    /// 需求 in 开个需求会, 张总的 in 加入张总的会议, 需求 in 对一下需求: what kind of conference it is.
    bool isDescription(std::size_t at) const
    {
        constexpr WordClasses verbs = WordClass::StrongOpen | WordClass::WeakOpen | WordClass::GoverningOpen |
                                      WordClass::Join | WordClass::WeakJoin;
        constexpr std::size_t farthest = 4;
        if (at > m_begin && m_tokens[at - 1].is(WordClass::Video) &&
            m_tokens[at].kind == Token::Kind::Other) {
            return true;
        }
        std::size_t next = at + 1;
        while (next < m_end && next < at + farthest &&
               (m_tokens[next].isAny(WordClass::Measure | WordClass::Title | WordClass::Plain) ||
                m_tokens[next].kind == Token::Kind::Other || isNothing(m_tokens[next]))) {
            ++next;
        }
        if (next >= m_end || !m_tokens[next].is(WordClass::Conference)) {
            return false;
        }
        for (std::size_t before = at; before > m_begin && at - before < farthest; --before) {
            if (m_tokens[before - 1].isAny(verbs)) {
                return true;
            }
        }
        return false;
    }

    /// Little words that change nothing.
    bool isNothing(const Token &token) const
    {
        if ((token.kind != Token::Kind::Other && token.kind != Token::Kind::Word)) {
            return false;
        }
        if (token.kind == Token::Kind::Word && token.classes.isEmpty()) {
            return true; // 创建 in 我创建的会议, settled to be no verb
        }
        const QString text = m_reading.sentence().text().mid(token.position, token.length);
        return std::all_of(text.cbegin(), text.cend(),
                           [&](QChar character) { return m_allowed.light.contains(character); });
    }

    const Reading &m_reading;
    const Tokens &m_tokens;
    const QString &m_intent;
    const Allowed m_allowed;
    const std::size_t m_begin;
    const std::size_t m_end;
    const bool m_isQuery;
};

} // namespace

/// “开会” is an order, 他说“开会” is none.
static bool isAllQuoted(const QString &text)
{
    return text.startsWith(QChar(u'“')) && text.indexOf(QChar(u'”')) == text.size() - 1;
}

Verdict judge(const Reading &reading, const QString &intent)
{
    const Tokens &tokens = reading.tokens();
    bool ordered = false;
    bool requested = false;
    bool finished = false;
    bool supposed = false;
    bool doubtful = false;
    bool untitled = false; // the name of the conference was not understood
    bool quoted = false;
    for (std::size_t begin = 0; begin < tokens.size();) {
        std::size_t end = begin;
        while (end < tokens.size() && !tokens[end].is(WordClass::Punctuation)) {
            ++end;
        }
        const QChar sign = end < tokens.size() ? reading.sentence().text().at(tokens[end].position) : QChar();
        const Clause clause(reading, intent, begin, end);
        supposed = supposed || clause.isSupposed();
        if (clause.isOrder()) {
            if (clause.isRefused()) {
                return Verdict::Refuse;
            }
            const bool asked = sign == QLatin1Char('?') && !clause.isRequested();
            const bool understood = clause.isUnderstood();
            untitled = untitled || (!understood && clause.isTitle());
            doubtful = doubtful || (!understood && !clause.isTitle()) || quoted ||
                       (asked && intent != QLatin1String(QueryConference));
            requested = requested || clause.isRequested();
            (clause.isFinished() ? finished : ordered) = true;
            ordered = ordered && !(clause.isTitle() && !understood);
        } else if (clause.callsSomebody()) { // 要开会了，拉上王磊
            ordered = true;
        }
        quoted = (sign == QChar(u'“') && !isAllQuoted(reading.sentence().text())) ||
                 (quoted && sign != QChar(u'”'));
        begin = end + 1;
    }
    if (supposed && !requested) {
        return Verdict::Refuse;
    }
    // 不开了，散会: the order follows what is finished.
    return doubtful || ((finished || untitled) && !ordered) ? Verdict::Ask : Verdict::Act;
}

} // namespace understanding
