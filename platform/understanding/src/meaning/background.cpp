// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/background.h"

#include "meaning/outcome.h"
#include "meaning/suspicions.h"
#include "names/namelook.h"
#include "text/characterset.h"

#include <algorithm>

namespace understanding {

namespace {

/// The tokens of a clause, without the sign that ends it.
struct Range
{
    std::size_t begin;
    std::size_t end;
};

class OrderStartFinder final
{
public:
    explicit OrderStartFinder(const Reading &reading)
        : m_text(reading.sentence().text())
        , m_tokens(reading.tokens())
    {
    }

    /// Where the order may begin, the likeliest place first.
    std::vector<OrderStart> find() const
    {
        std::vector<OrderStart> found;
        int behindTold = 0; // the last clause behind one that is told
        int plea = 0;
        int last = 0;
        bool onlyTold = true;
        bool elsewhere = false; // 拉个微信群，把赵云加进来
        bool twofold = false;   // 退出会议，帮我加入123456: which of the two?
        for (Range clause = {0, endOfClause(0)}; clause.end < m_tokens.size();) {
            const Range next = {clause.end + 1, endOfClause(clause.end + 1)};
            if (next.begin == m_tokens.size()) {
                break;
            }
            const int start = m_tokens[next.begin].position;
            const bool told = isTold(clause);
            elsewhere = elsewhere || (!told && any(clause, [](const Token &token) {
                            return token.is(WordClass::Unsupported) && !token.inName;
                        }));
            if (told && onlyTold) {
                found.assign(1, {start, true, false});
            } else if (told) {
                behindTold = start;
            }
            last = start;
            onlyTold = onlyTold && told;
            twofold = twofold || (!told && beginsWithDeed(clause));
            const bool others = elsewhere || twofold || isOnlySomebody(clause) || introducesQuote(clause);
            plea = plea == 0 && !others && isPlea(next.begin) ? start : plea;
            clause = next;
        }
        for (const int start : {behindTold, plea, twofold ? 0 : last}) {
            const bool known = std::any_of(found.cbegin(), found.cend(),
                                           [&](const OrderStart &other) { return other.position == start; });
            if (start > 0 && !known) {
                found.push_back({start, false, start == last});
            }
        }
        return found;
    }

private:
    static constexpr WordClasses Labels =
        WordClass::IdLabel | WordClass::PasswordLabel | WordClass::AccountLabel;

    template <typename Holds>
    bool any(const Range &clause, Holds holds) const
    {
        return std::any_of(m_tokens.cbegin() + static_cast<std::ptrdiff_t>(clause.begin),
                           m_tokens.cbegin() + static_cast<std::ptrdiff_t>(clause.end), holds);
    }

    std::size_t endOfClause(std::size_t at) const
    {
        while (at < m_tokens.size() && !m_tokens[at].is(WordClass::Punctuation)) {
            ++at;
        }
        return at;
    }

    /// 标题就写: what follows is quoted. A number that is read out is the speaker's own.
    bool introducesQuote(const Range &clause) const
    {
        const bool numberFollows = clause.end + 1 < m_tokens.size() && m_tokens[clause.end + 1].isAny(Labels);
        return clause.begin < clause.end && !numberFollows &&
               understanding::introducesQuote(m_text, m_tokens, clause.begin, clause.end);
    }

    /// 退出会议, 先把会退了, 查一下明天的会.
    bool beginsWithDeed(const Range &clause) const
    {
        constexpr WordClasses deeds = WordClass::Close | WordClass::CloseAlone | WordClass::Join |
                                      WordClass::Add | WordClass::StrongOpen | WordClass::Invite |
                                      WordClass::Query | WordClass::Pull | WordClass::Request;
        std::size_t at = clause.begin;
        while (at < clause.end && m_tokens[at].is(WordClass::Filler) && !m_tokens[at].isAny(deeds)) {
            ++at;
        }
        const bool calls = at < clause.end && m_tokens[at].is(WordClass::Trigger) &&
                           !m_tokens[at].is(WordClass::Separator); // 约, but not 和
        return at < clause.end && !m_tokens[at].inName && (calls || m_tokens[at].isAny(deeds));
    }

    /// 儿子，去把门关上 is said to somebody else.
    bool isOnlySomebody(const Range &clause) const
    {
        return clause.begin + 1 == clause.end && !m_tokens[clause.begin].is(WordClass::Address) &&
               (m_tokens[clause.begin].is(WordClass::Title) || m_tokens[clause.begin].inName ||
                isPersonsName(m_text.mid(m_tokens[clause.begin].position, m_tokens[clause.begin].length)));
    }

    /// 麻烦你, 你给我, 那就帮我, 助手, 你去拉, 会议号是.
    bool isPlea(std::size_t at) const
    {
        static const CharacterSet leading(u"你您那就还是先快去再赶紧");
        const auto leads = [&](const Token &token) { // 那就 also asks for something
            const bool plea = token.is(WordClass::Request) && m_text.at(token.position) != QChar(u'那');
            return token.length <= 2 && !plea && leading.contains(m_text.at(token.position));
        };
        static const CharacterSet addressed(u"你您");
        constexpr WordClasses deeds = WordClass::Pull | WordClass::Trigger | WordClass::Invite |
                                      WordClass::Join | WordClass::WeakJoin | WordClass::Add |
                                      WordClass::StrongOpen | WordClass::WeakOpen | WordClass::Close |
                                      WordClass::Query;
        bool toAssistant = false;
        while (at < m_tokens.size() && leads(m_tokens[at]) && !(toAssistant && m_tokens[at].isAny(deeds))) {
            toAssistant = toAssistant ||
                          (m_tokens[at].length == 1 && addressed.contains(m_text.at(m_tokens[at].position)));
            ++at;
        }
        static const CharacterSet pleas(u"帮请麻劳烦拜给替把让辛托");
        if (at >= m_tokens.size() || m_tokens[at].inName) {
            return false;
        }
        const Token &token = m_tokens[at];
        return token.isAny(Labels | WordClass::Address) || (toAssistant && token.isAny(deeds)) ||
               (token.is(WordClass::Request) && pleas.contains(m_text.at(token.position)));
    }

    QChar lastOf(const Range &clause) const { return m_text.at(m_tokens[clause.end - 1].end() - 1); }

    /// 刚掉线了, 我不是要约会议, 他们都说三点不行, but neither 通知上说, 如果客户同意了 nor 叫上李娜了.
    bool isTold(const Range &clause) const
    {
        return clause.begin < clause.end && !introducesQuote(clause) && !orders(clause) &&
               (tells(clause) || isStrange(clause) || isWrongLabel(clause));
    }

    bool tells(const Range &clause) const
    {
        constexpr WordClasses telling = WordClass::Reported | WordClass::Actor | WordClass::Negation |
                                        WordClass::Framed | WordClass::Lunar | WordClass::Festival;
        static const CharacterSet ends(u"了过呢的着");
        return ends.contains(lastOf(clause)) || any(clause, [&](const Token &token) {
                   return token.isAny(telling) || token.time.isPastDay() || isNegated(token) ||
                          (token.length == 1 && m_text.at(token.position) == QChar(u'了')); // 掉了两次线
               });
    }

    /// 不退 in 我不退会, 到不齐 in 人也到不齐.
    bool isNegated(const Token &token) const
    {
        static const CharacterSet negations(u"不没");
        const auto first = m_text.cbegin() + token.position;
        return !token.inName && token.kind == Token::Kind::Other &&
               std::any_of(first, first + token.length,
                           [&](QChar character) { return negations.contains(character); });
    }

    /// 周五我出差: the speaker, something that no rule knows, and no word of any order.
    bool isStrange(const Range &clause) const
    {
        constexpr int shortest = 2;
        constexpr WordClasses known = WordClass::Filler | WordClass::Nobody | WordClass::Plain |
                                      WordClass::OpenParticle | WordClass::Title;
        const bool unknown = any(clause, [](const Token &token) {
            return token.kind == Token::Kind::Other && token.length >= shortest && !token.inName;
        });
        const bool ours = any(clause, [](const Token &token) { return token.is(WordClass::Nobody); });
        return unknown && ours && !any(clause, [&](const Token &token) {
                   return token.inName || (token.kind == Token::Kind::Word && !token.isAny(known));
               });
    }

    /// 号错了, 刚才密码说错了, 号不对吧: tells what was wrong; the order behind it says what is right.
    bool isWrongLabel(const Range &clause) const
    {
        const int begin = m_tokens[clause.begin].position;
        return tellsWrongNumber(m_text.mid(begin, m_tokens[clause.end - 1].end() - begin));
    }

    bool orders(const Range &clause) const
    {
        constexpr WordClasses unlessDone = WordClass::Cancel | WordClass::Change; // 会取消了
        const bool done = lastOf(clause) == QChar(u'了');
        const bool cancelled = any(clause, [&](const Token &token) { return token.isAny(unlessDone); });
        const bool subject = m_tokens[clause.begin].inName || m_tokens[clause.begin].is(WordClass::Actor);
        const bool planned = any(clause,
                                 [](const Token &token) {
                                     return token.kind == Token::Kind::Time && !token.time.isPastDay();
                                 }) &&
                             any(clause, [](const Token &token) { return token.is(WordClass::Conference); });
        const bool givesUp = m_tokens[clause.begin].is(WordClass::GiveUp); // 昨天的不用管 gives nothing up
        const bool misheard = isWrongLabel(clause);
        return givesUp || (planned && !(cancelled && done)) || (cancelled && !done) ||
               any(clause, [&](const Token &token) {
                   return !token.inName && !misheard &&
                          (token.is(WordClass::Repair) || (token.is(WordClass::Request) && !subject));
               });
    }

    const QString &m_text;
    const Tokens &m_tokens;
};

} // namespace

std::vector<OrderStart> startsOfOrder(const Reading &reading)
{
    return isConditional(reading) ? std::vector<OrderStart>() : OrderStartFinder(reading).find();
}

int endOfQuestion(const Reading &reading)
{
    constexpr WordClasses weighty =
        WordClass::Repair | WordClass::Conference | WordClass::Query | WordClass::Question |
        WordClass::GiveUp | WordClass::Join | WordClass::Close | WordClass::CloseAlone | WordClass::Pull |
        WordClass::Invite | WordClass::Add | WordClass::StrongOpen | WordClass::WeakOpen | WordClass::Video;
    const Tokens &tokens = reading.tokens();
    const auto end = std::find_if(tokens.cbegin(), tokens.cend(),
                                  [](const Token &token) { return token.is(WordClass::Punctuation); });
    const bool trails = reading.names().empty() && std::none_of(end, tokens.cend(), [&](const Token &token) {
                            return token.isAny(weighty) || token.kind == Token::Kind::Time ||
                                   reading.sentence().text().at(token.position) == QChar(u'帮');
                        });
    return trails && end != tokens.cend() ? end->position : 0;
}

bool tellsWhatOthersWant(const QString &told)
{
    static const QStringList others = {
        QStringLiteral("问我"),   QStringLiteral("问你"),   QStringLiteral("一句"),
        QStringLiteral("发来"),   QStringLiteral("说的"),   QStringLiteral("跟你说"),
        QStringLiteral("不知道"), QStringLiteral("犹豫"),   QStringLiteral("差点"),
        QStringLiteral("不让"),   QStringLiteral("不肯"),   QStringLiteral("不准"),
        QStringLiteral("不同意"), QStringLiteral("要不要"), QStringLiteral("英语"),
        QStringLiteral("怎么读")};
    return passesOn(told) || std::any_of(others.cbegin(), others.cend(),
                                         [&](const QString &word) { return told.contains(word); });
}

bool dropsSomething(const Reading &whole, const Reading &rest, const QString &intent, int start)
{
    constexpr int shortest = 4;
    const auto lost = [&](const Said &said, const Said &kept) {
        return said.position < start && said.normValue.size() >= shortest && said.normValue != kept.normValue;
    };
    const bool opens = intent == QLatin1String(CreateConference);
    const bool invites = intent == QLatin1String(InviteConference);
    if (opens || invites || intent == QLatin1String(QueryConference)) {
        const Tokens &tokens = whole.tokens();
        const bool timed = std::any_of(tokens.cbegin(), tokens.cend(), [&](const Token &token) {
            return token.position < start && token.kind == Token::Kind::Time && !token.time.isPastDay() &&
                   (!invites || token.time.hasClock);
        });
        return (timed && rest.timeSaid().isEmpty()) ||
               ((opens || invites) && rest.names().empty() && !whole.names().empty());
    }
    return (intent == QLatin1String(EnterConferenceById) &&
            (lost(whole.conferenceNumber(), rest.conferenceNumber()) ||
             lost(whole.password(), rest.password()))) ||
           (intent == QLatin1String(AddBuddy) && lost(whole.account(), rest.account()));
}

} // namespace understanding
