// check: all that breaks a constraint of the ASN.1, a rule of its encoding or a rule between the members.
#include "commands.h"
#include "encodingFindings.h"
#include "findingPath.h"
#include "projectFile.h"
#include "recordFindings.h"
#include "ruleFindings.h"
#include "silences.h"
#include "text.h"
#include "textPlaces.h"

#include <algorithm>
#include <tuple>

namespace tool
{
namespace
{

class Checker
{
public:
    Checker(Session& session, const CheckOptions& options, ProjectFile&& project)
        : session_(session),
          options_(options),
          project_(std::move(project)),
          choice_{Ids(options.only, "--only"), Ids(options.disabled, "--disable")},
          isCellGroup_(session.common().type->type == asn1Type_CellGroupConfig()),
          isVerdict_(session.common().lines && options.form == FindingsForm::Text),
          inputs_(session, settings()),
          known_(inputs_.context()),
          held_(inputs_.held())
    {
        if (isVerdict_)
        {
            session.verdicts();
        }
        if (options.isChain)
        {
            beginChain();
        }
    }

    void look(const Given& given)
    {
        Message message(*session_.common().type, given);
        Findings all{{given.source, given.line}, encodingFindings(message, given), {}, {}};
        const bool isRead = message.error() == nullptr && message.mistakes().empty();
        const bool isWhole = isRead && message.refusal().empty();
        if (isRead && message.record() != nullptr)
        {
            std::vector<Finding> found = recordFindings(message);
            std::move(found.begin(), found.end(), std::back_inserter(all.findings));
        }
        if (isWhole && isCellGroup_)
        {
            RuleVerdict verdict = ruleFindings(message, known_, held_, choice_);
            std::move(verdict.findings.begin(), verdict.findings.end(), std::back_inserter(all.findings));
            all.undecided = std::move(verdict.undecided);
        }
        sortByPlace(all.findings);
        std::vector<Silence> own;
        if (isRead && message.isText())
        {
            own = readPlaces(given, all.findings);
        }
        if (message.record() != nullptr)
        {
            sortByLine(all.findings);
        }
        dropUnwanted(all.findings);
        silence(given, own, all);
        const Severity shown = options_.shown;
        std::erase_if(all.findings, [&](const Finding& finding) { return finding.severity < shown; });
        raise(message, all.findings);
        tell(given, std::move(all));
        if (options_.isChain && isWhole)
        {
            goOn(message, given);
        }
    }

    void finish()
    {
        if (options_.form != FindingsForm::Text)
        {
            session_.put(writeFindings(all_, options_.form, look_));
        }
        tellUnused(project_.silences);
    }

private:
    // The command line's, then the project's.
    Settings settings() const
    {
        if (isCellGroup_)
        {
            return merged(options_.context, project_.context);
        }
        if (!options_.context.empty() || options_.isChain)
        {
            throw Failure(Exit::Usage, (options_.isChain ? "--chain" : options_.context.front().origin) +
                                           ": rules are of CellGroupConfig, not of " + session_.common().type->name);
        }
        return {};
    }

    void sortByPlace(std::vector<Finding>& findings) const
    {
        std::vector<std::pair<std::vector<std::uint32_t>, Finding>> placed;
        for (Finding& finding : findings)
        {
            const std::string& element = finding.path.starts_with(recordRoot) ? finding.element : finding.path;
            std::vector<std::uint32_t> order = placeOrder(*session_.common().type->type, element);
            placed.emplace_back(std::move(order), std::move(finding));
        }
        std::stable_sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        findings.clear();
        for (auto& [order, finding] : placed)
        {
            findings.push_back(std::move(finding));
        }
    }

    // Those of a record stand where its text has them, what has no line behind them.
    static void sortByLine(std::vector<Finding>& findings)
    {
        const auto key = [](const Finding& finding)
        {
            return std::tuple(finding.line == 0, finding.line, finding.column);
        };
        std::stable_sort(findings.begin(), findings.end(),
                         [&](const Finding& a, const Finding& b) { return key(a) < key(b); });
    }

    // Where the findings are in the text, and what its comments silence.
    std::vector<Silence> readPlaces(const Given& given, std::vector<Finding>& findings) const
    {
        std::set<std::string> paths;
        for (const Finding& finding : findings)
        {
            paths.insert(plainPath(finding.path));
        }
        const bool isRecord = given.input.form == Form::Record;
        const TextPlaces places(isRecord ? recordRoot : session_.common().type->name, given.input, paths);
        const auto put = [&](Finding& finding, const Place& place)
        {
            finding.line = given.line == 0 ? place.line : given.line;
            finding.column = place.column;
        };
        for (Finding& finding : findings)
        {
            if (!finding.configuredBefore)
            {
                put(finding, places.find(plainPath(finding.path)));
            }
        }
        std::vector<Silence> silences;
        for (TextComment comment : places.comments())
        {
            std::string mistake;
            comment.place.line = given.line == 0 ? comment.place.line : given.line;
            if (auto silence = silenceOf(comment, given.source, mistake))
            {
                silences.push_back(std::move(*silence));
                continue;
            }
            Finding finding;
            finding.id = "silence";
            finding.path = comment.path;
            finding.message = mistake;
            finding.advice = wordsOf(finding.id).advice;
            put(finding, comment.place);
            findings.push_back(std::move(finding));
        }
        return silences;
    }

    void dropUnwanted(std::vector<Finding>& findings) const
    {
        std::erase_if(findings,
                      [&](const Finding& finding) { return wrongId(finding.id).empty() && !choice_.has(finding.id); });
    }

    void silence(const Given& given, std::vector<Silence>& own, Findings& all)
    {
        std::vector<Silence*> silences;
        for (std::vector<Silence>* const of : {&own, &project_.silences})
        {
            for (Silence& one : *of)
            {
                silences.push_back(&one);
            }
        }
        all.silenced = silenced(all.findings, silences);
        tellUnused(own);
        if (!all.silenced.empty() && options_.form == FindingsForm::Text && !isVerdict_)
        {
            session_.say(given.place() + ": " + counted(all.silenced.size(), "finding") + " silenced");
        }
    }

    void tellUnused(const std::vector<Silence>& silences)
    {
        for (const Silence& one : silences)
        {
            if (!one.isUsed)
            {
                session_.note(one.by + ": nothing is silenced, " + one.rule +
                              (one.path.empty() ? "" : " at " + one.path) + " has no finding");
            }
        }
    }

    void raise(const Message& message, const std::vector<Finding>& findings)
    {
        const bool fails = options_.failOn &&
                           std::any_of(findings.begin(), findings.end(),
                                       [&](const Finding& finding) { return finding.severity >= *options_.failOn; });
        if (message.error() != nullptr || fails)
        {
            session_.raise(message.error() != nullptr ? Exit::Malformed : Exit::Findings);
        }
    }

    void tell(const Given& given, Findings&& findings)
    {
        if (options_.form != FindingsForm::Text)
        {
            all_.push_back(std::move(findings));
            return;
        }
        if (isVerdict_)
        {
            const std::string counts = countText(findings);
            session_.put(given.place() + ": " + (counts.empty() ? "no finding" : counts) + "\n");
        }
        session_.put(writeFindings({std::move(findings)}, options_.form, look_));
    }

    // Without earlier messages the first one is the UE's first.
    void beginChain()
    {
        if (known_.fullConfig != 0)
        {
            throw Failure(Exit::Usage, "--chain: not every message has fullConfig");
        }
        if (!held_ && known_.extent == RRC_RULE_EXTENT_DELTA)
        {
            throw Failure(Exit::Usage, "--chain: begins with --previous or with nothing, not with --delta");
        }
        if (!held_)
        {
            known_.extent = RRC_RULE_EXTENT_FULL;
        }
    }

    // To what the UE holds after the message. One that cannot be applied was told as a finding.
    void goOn(Message& message, const Given& given)
    {
        try
        {
            held_ = stateAfter(session_, held_, message.encode(), given.place());
        }
        catch (const Failure& failure)
        {
            session_.say(std::string(failure.what()) + "; the next message is checked without it");
        }
    }

    Session& session_;
    const CheckOptions& options_;
    ProjectFile project_;
    RuleChoice choice_;
    bool isCellGroup_;
    bool isVerdict_;
    FindingsLook look_{session_.color(), session_.common().verbose};
    RuleInputs inputs_;
    RrcRuleContext known_;
    std::optional<Encoding> held_;
    std::vector<Findings> all_;
};

ProjectFile projectOf(Session& session, const CheckOptions& options)
{
    if (!options.hasProject)
    {
        return {};
    }
    const std::string name = options.project.empty() ? projectFileName() : options.project;
    if (name.empty())
    {
        return {};
    }
    session.note("project file " + name);
    return readProjectFile(name);
}

} // namespace

void check(Session& session, const Operands& operands, const CheckOptions& options)
{
    Checker checker(session, options, projectOf(session, options));
    session.forEach(operands, [&](const Given& given) { checker.look(given); });
    checker.finish();
}

} // namespace tool
