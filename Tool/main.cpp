// cellgroupcfg: the command line.
#include "commands.h"
#include "messageTypes.h"
#include "nearest.h"
#include "version.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <new>

namespace
{

using tool::Common;
using tool::Exit;
using tool::Failure;
using tool::Operands;
using tool::Session;

// Examples first, which are the footer of each command's help.
class Help : public CLI::Formatter
{
public:
    std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode) const override
    {
        return "Examples:\n" + app->get_footer() + "\n" + make_description(app) + "\n" + make_usage(app, name) +
               make_positionals(app) + make_groups(app, CLI::AppFormatMode::Normal) +
               make_subcommands(app, CLI::AppFormatMode::Normal) + after(app);
    }

private:
    static std::string after(const CLI::App* app)
    {
        if (app->get_parent() != nullptr)
        {
            return "";
        }
        return "\nA message is a file, '-' or nothing for standard input, or the octets themselves. What it looks "
               "like\n"
               "is found out: hex, dumps, C arrays, base64, binary, JER, records, flat lines, log lines.\n"
               "Exit status: 0 done, 1 findings, differences or a refusal, 2 usage or a file, 3 malformed input,\n"
               "4 a delta has nothing to send.\n"
               "'cellgroupcfg COMMAND --help' tells more; so does the manual, cellgroupcfg(1).\n";
    }
};

class CommandLine
{
public:
    CommandLine()
    {
        app_.formatter(std::make_shared<Help>());
        app_.name("cellgroupcfg");
        app_.get_formatter()->column_width(28);
        app_.get_formatter()->label("SUBCOMMAND", "COMMAND");
        app_.description("Shows, makes, compares and finds cell groups: the CellGroupConfig of " +
                         std::string(tool::standard) + " in unaligned PER.");
        app_.footer("  cellgroupcfg decode 5c00b1                  what these octets say\n"
                    "  cellgroupcfg decode --flat trace.log | grep drx\n"
                    "  cellgroupcfg diff before.hex after.hex      what has changed\n"
                    "  cellgroupcfg delta before.hex after.hex     the message that brings it about\n"
                    "  cellgroupcfg find capture.pcap --decode     the cell groups in anything\n"
                    "  cellgroupcfg explain t304                   what may stand there\n"
                    "  cellgroupcfg explain bwp-in-carrier         what a rule says\n");
        app_.set_help_flag("-h,--help", "This help, for a command its own");
        app_.set_version_flag("--version", versionText, "Version, the standard's release and the commit");
        app_.require_subcommand(1);
        app_.get_option("--help")->group("Options");
        decode();
        encode();
        diff();
        delta();
        apply();
        compose();
        record();
        example();
        check();
        view();
        draw();
        find();
        pcap();
        rules();
        explain();
    }

    int run(int argc, char** argv)
    {
        try
        {
            app_.parse(argc, argv);
            Session session(common());
            try
            {
                command_(session);
                session.finish();
            }
            catch (const Failure& failure)
            {
                session.finish(true);
                session.say(failure.what());
                session.raise(failure.status());
            }
            return static_cast<int>(session.status());
        }
        catch (const CLI::Success& success)
        {
            return app_.exit(success);
        }
        catch (const CLI::ParseError& error)
        {
            return usage(error);
        }
        catch (const tool::Closed&)
        {
            return static_cast<int>(Exit::Done);
        }
        catch (const Failure& failure)
        {
            return fail(failure.what(), failure.status());
        }
    }

private:
    static std::string versionText()
    {
        const std::string commit = *tool::commit == '\0' ? "" : std::string(", commit ") + tool::commit;
        return std::string("cellgroupcfg ") + tool::version + ", " + tool::standard + " (" + tool::release + ")" +
               commit;
    }

    static int fail(const std::string& message, Exit status)
    {
        (void)std::fprintf(stderr, "cellgroupcfg: %s\n", message.c_str());
        return static_cast<int>(status);
    }

    // The nearest command or option to what is not known.
    int usage(const CLI::ParseError& error)
    {
        std::string message = error.what();
        const CLI::App* const used =
            app_.get_subcommands().empty() ? static_cast<const CLI::App*>(&app_) : app_.get_subcommands().front();
        const std::vector<std::string> left = used->remaining();
        if (!left.empty())
        {
            message = "there is no " + kindOf(left.front(), used) + " '" + left.front() + "'";
            const std::vector<std::string> names = namesOf(left.front(), *used);
            const std::vector<std::string_view> views(names.begin(), names.end());
            if (const auto close = text::nearest(left.front(), views))
            {
                message += "; did you mean " + std::string(*close) + "?";
            }
        }
        return fail(message + "\ncellgroupcfg: 'cellgroupcfg " +
                        (used == &app_ ? std::string() : used->get_name() + " ") + "--help' shows how it is used",
                    Exit::Usage);
    }

    std::string kindOf(const std::string& word, const CLI::App* used) const
    {
        return word.starts_with('-') ? "option" : used == &app_ ? "command" : "place for the operand";
    }

    static std::vector<std::string> namesOf(const std::string& word, const CLI::App& used)
    {
        std::vector<std::string> names;
        if (word.starts_with('-'))
        {
            for (const CLI::Option* option : used.get_options())
            {
                for (const std::string& name : option->get_lnames())
                {
                    names.push_back("--" + name);
                }
            }
        }
        else
        {
            for (const CLI::App* command : used.get_subcommands(std::function<bool(const CLI::App*)>()))
            {
                names.push_back(command->get_name());
            }
        }
        return names;
    }

    // Options that several commands have.

    CLI::App& command(const std::string& name, const std::string& description, const std::string& examples,
                      const std::function<void(Session&)>& action)
    {
        CLI::App& app = *app_.add_subcommand(name, description);
        app.group("Commands");
        app.footer(examples);
        app.add_option("--color", color_, "auto, always or never; auto heeds NO_COLOR")
            ->option_text("WHEN")
            ->check(CLI::IsMember({"auto", "always", "never"}));
        app.parse_complete_callback([this, action] { command_ = action; });
        return app;
    }

    void input(CLI::App& app)
    {
        app.add_option("--as", as_, "Take the input for this form, whatever it looks like")->option_text("FORM");
        app.add_flag("-v,--verbose", common_.verbose, "Say on standard error what was recognised");
    }

    void messages(CLI::App& app)
    {
        app.add_option("FILE", operands_, "Messages: files, '-' for standard input, or octets")->option_text("...");
        input(app);
        app.add_flag("--lines", common_.lines, "One message a line");
    }

    void type(CLI::App& app)
    {
        app.add_option("--type", type_, "The message's type, CellGroupConfig if none is named")->option_text("TYPE");
    }

    // One of the forms of output; of several the command is refused.
    void form(CLI::App& app, const std::string& name, bool& flag, const std::string& description)
    {
        app.add_flag(name, flag, description)
            ->group("Form of the output")
            ->each(
                [this, name](const std::string&)
                {
                    if (!form_.empty())
                    {
                        throw Failure(Exit::Usage, form_ + " and " + name + " exclude each other");
                    }
                    form_ = name;
                });
    }

    void output(CLI::App& app)
    {
        app.add_option("-o,--output", output_, "Write to this file")->option_text("FILE");
    }

    void decode()
    {
        CLI::App& app = command("decode", "Show what messages say.",
                                "  cellgroupcfg decode message.hex\n"
                                "  cellgroupcfg decode --json - < message.bin\n"
                                "  cellgroupcfg decode --flat trace.log | grep t-PollRetransmit\n"
                                "  cellgroupcfg decode --explain message.hex   with what the values mean\n"
                                "  cellgroupcfg decode --trace 5c00b1\n"
                                "  cellgroupcfg decode --lines log.txt\n"
                                "  cellgroupcfg decode --type RLC-Config 0a\n",
                                [this](Session& session) {
                                    tool::decode(session, operands_, decodeForm(), {explain_, settings_});
                                });
        messages(app);
        type(app);
        decodeForms(app);
        explained(app);
    }

    // What values mean, and what that is read by.
    void explained(CLI::App& app)
    {
        app.add_flag("--explain", explain_, "Say behind the values what they mean");
        allKnown(app);
    }

    void allKnown(CLI::App& app)
    {
        for (OSUINT32 i = 0; i < rrcSettingCount(); ++i)
        {
            known(app, *rrcSettingAt(i));
        }
    }

    void decodeForms(CLI::App& app)
    {
        form(app, "--tree", tree_, "Indented elements; the form if none is named");
        form(app, "--json", json_, "JER (X.697), indented");
        form(app, "--compact", compact_, "JER on one line");
        form(app, "--value-notation", valueNotation_, "ASN.1 value notation (X.680)");
        form(app, "--flat", flat_, "A line a leaf: path = value; encode reads it back");
        form(app, "--trace", trace_, "A line a field on the wire: bits, path, value");
    }

    tool::DecodeForm decodeForm() const
    {
        using tool::DecodeForm;
        return json_                     ? DecodeForm::Json
               : compact_                ? DecodeForm::CompactJson
               : valueNotation_          ? DecodeForm::ValueNotation
               : flat_                   ? DecodeForm::Flat
               : trace_                  ? DecodeForm::Trace
               : tree_ || !common_.lines ? DecodeForm::Tree
                                         : DecodeForm::Verdict;
    }

    void encode()
    {
        CLI::App& app = command("encode", "Make octets of JER or flat lines.",
                                "  cellgroupcfg encode message.json\n"
                                "  cellgroupcfg decode --flat a.hex | sed 's/= ms50$/= ms100/' | cellgroupcfg encode\n"
                                "  cellgroupcfg encode --binary -o message.bin message.json\n",
                                [this](Session& session)
                                {
                                    session.outputTo(output_);
                                    tool::encode(session, operands_, octetsForm());
                                });
        messages(app);
        type(app);
        output(app);
        octetsForms(app);
    }

    void octetsForms(CLI::App& app)
    {
        form(app, "--hex", hex_, "Hex; the form if none is named");
        form(app, "--binary", binary_, "The octets themselves");
        form(app, "--c-array", cArray_, "A C array");
        form(app, "--base64", base64_, "Base64");
    }

    tool::OctetsForm octetsForm() const
    {
        using tool::OctetsForm;
        return binary_   ? OctetsForm::Binary
               : cArray_ ? OctetsForm::CArray
               : base64_ ? OctetsForm::Base64
                         : OctetsForm::Hex;
    }

    void diff()
    {
        CLI::App& app =
            command("diff", "Show in what two messages differ.",
                    "  cellgroupcfg diff before.hex after.hex\n"
                    "  cellgroupcfg diff expected.json 5c00b1\n"
                    "  cellgroupcfg diff --json a.bin b.bin\n"
                    "  cellgroupcfg diff --state a.hex b.hex       of what they leave behind\n",
                    [this](Session& session) {
                        tool::diff(session, operands_[0], operands_[1], {json_, state_, {explain_, settings_}});
                    });
        app.add_option("A B", operands_, "The messages: files, '-' for standard input, or octets")
            ->option_text(" ")
            ->expected(2)
            ->required();
        input(app);
        type(app);
        app.add_flag("--json", json_, "The differences as JSON");
        app.add_flag("--state", state_, "Compare what a UE holds after each of them");
        explained(app);
    }

    void delta()
    {
        CLI::App& app =
            command("delta", "Make the smallest message from what a UE has to what it shall have.",
                    "  cellgroupcfg delta has.hex shall.json\n"
                    "  cellgroupcfg delta --explain has.hex shall.json\n"
                    "  cellgroupcfg delta none shall.json          to a UE that has nothing\n"
                    "  cellgroupcfg delta --recreate scells,bwps has.hex shall.hex\n"
                    "  cellgroupcfg delta --two-steps has.hex shall.hex | cellgroupcfg apply --lines has.hex\n",
                    [this](Session& session)
                    {
                        session.outputTo(output_);
                        tool::delta(session, operands_[0], operands_[1], deltaOptions());
                    });
        app.add_option("PREV NEXT", operands_, "Complete messages: what the UE has confirmed, or none; and the new one")
            ->option_text(" ")
            ->expected(2)
            ->required();
        input(app);
        type(app);
        output(app);
        app.add_flag("--explain", explain_, "A comment for each member sent or released, with its reason");
        app.add_option("--recreate", recreate_,
                       "What else may be released and added again: bearers, scells, bwps; or none of all lists")
            ->option_text("LIST")
            ->delimiter(',')
            ->allow_extra_args(false)
            ->check(CLI::IsMember({"bearers", "scells", "bwps", "none"}));
        app.add_flag("--two-steps", twoSteps_, "Two messages, where one cannot do it");
        app.add_flag("--sync", sync_, "Send reconfigurationWithSync also when it is the same");
        app.add_flag("--switch", switch_, "Send the SpCell's first active bandwidth parts, too");
        octetsForms(app);
    }

    tool::DeltaOptions deltaOptions() const
    {
        if (explain_ && (binary_ || cArray_))
        {
            throw Failure(Exit::Usage, "--explain and " + form_ + " exclude each other");
        }
        unsigned flags =
            (twoSteps_ ? RTX_DELTA_TWO_STEPS : 0U) | (sync_ ? RTX_DELTA_SYNC : 0U) | (switch_ ? RTX_DELTA_SWITCH : 0U);
        for (const std::string& what : recreate_)
        {
            flags |= what == "bearers"  ? RTX_DELTA_RECREATE_BEARERS
                     : what == "scells" ? RTX_DELTA_RECREATE_SCELLS
                     : what == "bwps"   ? RTX_DELTA_RECREATE_BWPS
                                        : RTX_DELTA_RECREATE_NONE;
        }
        if ((flags & RTX_DELTA_RECREATE_NONE) != 0 && recreate_.size() != 1)
        {
            throw Failure(Exit::Usage, "--recreate: none stands alone");
        }
        return {flags, explain_, octetsForm()};
    }

    void apply()
    {
        CLI::App& app = command("apply", "Tell what a UE holds after messages.",
                                "  cellgroupcfg apply has.hex delta.hex\n"
                                "  cellgroupcfg apply --state has.hex first.hex second.json\n"
                                "  cellgroupcfg delta has.hex shall.json | cellgroupcfg apply has.hex\n"
                                "  cellgroupcfg find ue.log | cellgroupcfg apply --lines --state --json none\n",
                                [this](Session& session)
                                {
                                    session.outputTo(output_);
                                    const Operands deltas(operands_.begin() + 1, operands_.end());
                                    tool::apply(session, operands_[0], deltas, stateForm());
                                });
        app.add_option("PREV DELTA", operands_,
                       "What the UE has, or none; messages: files, '-' for standard input, or octets")
            ->option_text("...")
            ->required();
        input(app);
        app.add_flag("--lines", common_.lines, "One message a line, for logs; PREV is one message all the same");
        type(app);
        output(app);
        octetsForms(app);
        app.add_flag("--state", state_, "Show the state instead of its octets")->group("Form of the output");
        decodeForms(app);
    }

    tool::StateForm stateForm() const
    {
        const bool isOctets = hex_ || binary_ || cArray_ || base64_;
        if (state_ && isOctets)
        {
            throw Failure(Exit::Usage, "--state and " + form_ + " exclude each other");
        }
        return state_ && form_.empty() ? tool::StateForm(tool::DecodeForm::Tree) : composeForm();
    }

    void compose()
    {
        CLI::App& app = command("compose", "Make the message of a record in JSON.",
                                "  cellgroupcfg compose record.json\n"
                                "  cellgroupcfg example typical-call | cellgroupcfg compose --tree\n"
                                "  cellgroupcfg compose --binary -o message.bin record.json\n",
                                [this](Session& session)
                                {
                                    session.outputTo(output_);
                                    tool::compose(session, name_.empty() ? "-" : name_, composeForm());
                                });
        app.add_option("RECORD", name_, "A record: a file, '-' or nothing for standard input")->option_text(" ");
        output(app);
        octetsForms(app);
        decodeForms(app);
    }

    tool::StateForm composeForm() const
    {
        if (hex_ || binary_ || cArray_ || base64_ || form_.empty())
        {
            return octetsForm();
        }
        return decodeForm();
    }

    void record()
    {
        CLI::App& app =
            command("record", "Make the records that compose to messages.",
                    "  cellgroupcfg record message.hex > record.json\n"
                    "  cellgroupcfg record capture.log | sed 's/\"ms100\"/\"ms200\"/' | cellgroupcfg compose\n"
                    "  cellgroupcfg record --cpp -o test.cpp message.hex\n",
                    [this](Session& session)
                    {
                        session.outputTo(output_);
                        tool::record(session, operands_, cpp_);
                    });
        messages(app);
        output(app);
        app.add_flag("--cpp", cpp_, "The C++ that fills the record, instead of JSON");
    }

    void example()
    {
        CLI::App& app = command("example", "Show records in JSON to begin with.",
                                "  cellgroupcfg example                        all there are\n"
                                "  cellgroupcfg example typical-call > record.json\n"
                                "  cellgroupcfg example --all macCellGrpCfg.drxCfg\n",
                                [this](Session& session)
                                {
                                    session.outputTo(output_);
                                    all_ ? tool::scaffold(session, name_) : tool::example(session, name_);
                                });
        app.add_option("NAME", name_, "The example; with --all a field of the record, all of it if none is named")
            ->option_text(" ");
        app.add_flag("--all", all_, "A record with every member of a field, each with what may stand there");
        output(app);
    }

    void check()
    {
        CLI::App& app = command("check", "Tell all that breaks the ASN.1, its encoding or the rules between members.",
                                "  cellgroupcfg check message.json\n"
                                "  cellgroupcfg check --previous has.hex delta.hex\n"
                                "  cellgroupcfg check --full --band n78 --carrier 30:0:273 -v message.hex\n"
                                "  cellgroupcfg check --only rlc- --fail-on warning message.hex\n"
                                "  cellgroupcfg check --format sarif *.hex > findings.sarif\n"
                                "  cellgroupcfg check --lines --chain log.txt\n",
                                [this](Session& session) { tool::check(session, operands_, checkOptions()); });
        messages(app);
        type(app);
        app.add_option("--format", format_, "text, gcc, json or sarif")
            ->option_text("FORMAT")
            ->check(CLI::IsMember({"text", "gcc", "json", "sarif"}));
        app.add_option("--severity", severity_,
                       "The least that is shown: error, warning or notice; warning if not said")
            ->option_text("SEVERITY")
            ->check(CLI::IsMember({"error", "warning", "notice"}));
        app.add_option("--fail-on", failOn_, "The least that ends with 1: error, warning, notice or never")
            ->option_text("SEVERITY")
            ->check(CLI::IsMember({"error", "warning", "notice", "never"}));
        words(app, "--only", only_, "Nothing but these rules, or those that begin so: bwp-");
        words(app, "--disable", disabled_, "Not these rules");
        app.add_option("--config", project_, "Read this project file; .cellgroupcfg.toml if not said")
            ->option_text("FILE");
        app.add_flag("--no-config", noProject_, "Read no project file");
        app.add_flag("--chain", chain_, "Each message comes on top of those before it, the first one of --previous");
        allKnown(app);
    }

    void view()
    {
        CLI::App& app =
            command("view", "Make a page that shows messages in a browser; of none, one to paste them into.",
                    "  cellgroupcfg view -o message.html message.hex\n"
                    "  cellgroupcfg view -o changes.html before.hex after.hex\n"
                    "  cellgroupcfg view --band n78 --carrier 30:0:273 -o message.html message.hex\n"
                    "  cellgroupcfg view -o playground.html\n",
                    [this](Session& session)
                    {
                        session.outputTo(output_);
                        tool::view(session, operands_, settings_);
                    });
        app.add_option("A B", operands_,
                       "One message, or two and their differences: files, '-', or octets; none: a playground")
            ->option_text(" ")
            ->expected(0, 2);
        input(app);
        output(app);
        allKnown(app);
    }

    static void words(CLI::App& app, const std::string& name, std::vector<std::string>& to,
                      const std::string& description)
    {
        app.add_option(name, to, description)->option_text("RULE")->delimiter(',')->allow_extra_args(false);
    }

    // What is known besides the message.
    void known(CLI::App& app, const RrcSetting& option)
    {
        const std::string name = "--" + std::string(option.name);
        const auto add = [this, &option, name](const std::string& value)
        {
            settings_.push_back({&option, value, name});
        };
        const auto addAll = [add](const std::vector<std::string>& values)
        {
            std::for_each(values.begin(), values.end(), add);
        };
        const bool isFlag = *option.argument == '\0';
        CLI::Option* const made =
            isFlag ? app.add_flag_callback(
                         name, [add] { add(""); }, option.description)
                   : app.add_option_function<std::vector<std::string>>(name, addAll, option.description)
                         ->option_text(option.argument)
                         ->allow_extra_args(false);
        made->group("What is known besides the message");
    }

    tool::CheckOptions checkOptions() const
    {
        if (noProject_ && !project_.empty())
        {
            throw Failure(Exit::Usage, "--config and --no-config exclude each other");
        }
        const auto failOn = tool::severityNamed(failOn_); // never: none
        const auto usual = common_.verbose ? tool::Severity::Notice : tool::Severity::Warning;
        const auto shown = tool::severityNamed(severity_).value_or(failOn ? std::min(usual, *failOn) : usual);
        if (failOn && *failOn < shown)
        {
            throw Failure(Exit::Usage, "--fail-on " + failOn_ + ": what fails is shown, say --severity " + failOn_);
        }
        return {*tool::findingsFormNamed(format_),
                shown,
                failOn,
                only_,
                disabled_,
                settings_,
                !noProject_,
                project_,
                chain_};
    }

    void draw()
    {
        CLI::App& app = command("draw", "Draw the radio resources that a message configures, as SVG.",
                                "  cellgroupcfg draw -o call.svg message.hex\n"
                                "  cellgroupcfg draw --band n78 --carrier 30:0:273 -o call.svg message.hex\n"
                                "  cellgroupcfg draw --previous has.hex -o after.svg delta.hex\n"
                                "  cellgroupcfg draw --from 8 --slots 1 -o slot8.svg message.hex   one slot, large\n",
                                [this](Session& session)
                                {
                                    session.outputTo(output_);
                                    tool::draw(session, name_.empty() ? "-" : name_, {from_, slots_, settings_});
                                });
        app.add_option("FILE", name_, "A message: a file, '-' or nothing for standard input, or octets")
            ->option_text(" ");
        input(app);
        output(app);
        app.add_option("--slots", slots_,
                       "Slots that are drawn, 1 to 160; the least common multiple of the periods, at most 80, if not "
                       "said")
            ->option_text("N")
            ->check(CLI::Range(1, 160));
        app.add_option("--from", from_, "The first of them, 0 to 10239, counted from system frame 0; 0 if not said")
            ->option_text("N")
            ->check(CLI::Range(0, 10239));
        allKnown(app);
    }

    void find()
    {
        CLI::App& app = command("find", "Find cell groups in messages, logs and captures, at any bit.",
                                "  cellgroupcfg find capture.pcap\n"
                                "  cellgroupcfg find --decode f1ap.bin\n"
                                "  cellgroupcfg find --min-octets 40 dump.hex\n",
                                [this](Session& session) {
                                    tool::find(session, operands_, {minOctets_, decode_, json_});
                                });
        messages(app);
        type(app);
        app.add_option("--min-octets", minOctets_, "The least octets of a cell group, 1 to 16383; 16 if not said")
            ->option_text("N")
            ->check(CLI::Range(1, 16383));
        app.add_flag("--decode", decode_, "Show each of them");
        app.add_flag("--json", json_, "As JSON");
    }

    void pcap()
    {
        CLI::App& app = command("pcap", "Make a capture that Wireshark opens.",
                                "  cellgroupcfg pcap -o message.pcapng message.hex\n"
                                "  cellgroupcfg pcap --in rrc-reconfiguration -o message.pcapng message.json\n"
                                "  cellgroupcfg pcap --lines -o log.pcapng log.txt\n",
                                [this](Session& session)
                                {
                                    session.outputTo(output_);
                                    tool::pcap(session, operands_, nesting());
                                });
        messages(app);
        output(app);
        app.add_option("--in", nesting_, "The RRC message around it: rrc-reconfiguration, rrc-setup, or bare")
            ->option_text("MESSAGE")
            ->check(CLI::IsMember({"bare", "rrc-reconfiguration", "rrc-setup"}));
    }

    tool::Nesting nesting() const
    {
        return nesting_ == "rrc-setup"             ? tool::Nesting::RrcSetup
               : nesting_ == "rrc-reconfiguration" ? tool::Nesting::RrcReconfiguration
                                                   : tool::Nesting::Bare;
    }

    void rules()
    {
        CLI::App& app = command("rules", "List the rules of what holds between the members of a cell group.",
                                "  cellgroupcfg rules                          all of them\n"
                                "  cellgroupcfg rules bwp pdcch-coreset        those whose ids begin so\n"
                                "  cellgroupcfg rules --json > rules.json\n",
                                [this](Session& session) { tool::rules(session, operands_, json_); });
        app.add_option("PREFIX", operands_, "What ids begin with, such as a group: bwp")->option_text("...");
        app.add_flag("--json", json_, "All that explain tells of them, as JSON");
    }

    void explain()
    {
        CLI::App& app =
            command("explain", "Tell what the schema says of a type, a path or a member, or what a rule says.",
                    "  cellgroupcfg explain bwp-in-carrier         a rule\n"
                    "  cellgroupcfg explain RLC-Config\n"
                    "  cellgroupcfg explain CellGroupConfig.spCellConfig.reconfigurationWithSync.t304\n"
                    "  cellgroupcfg explain t304\n"
                    "  cellgroupcfg explain --tree MAC-CellGroupConfig\n"
                    "  cellgroupcfg explain                        all named types\n",
                    [this](Session& session) { tool::explain(session, name_, tree_); });
        app.add_option("NAME", name_, "A rule's id, a type, a path from a type on, a member or a field of the record")
            ->option_text(" ");
        app.add_flag("--tree", tree_, "With all that is below it");
    }

    Common common()
    {
        if (!as_.empty())
        {
            common_.as = tool::formNamed(as_);
            if (!common_.as)
            {
                throw Failure(Exit::Usage, tool::unknownForm(as_));
            }
        }
        common_.type = &tool::typeNamed(type_);
        common_.color = color_ == "always"  ? tool::When::Always
                        : color_ == "never" ? tool::When::Never
                                            : tool::When::Auto;
        return common_;
    }

    CLI::App app_;
    std::function<void(Session&)> command_;
    Common common_;
    Operands operands_;
    std::string as_;
    std::string type_ = "CellGroupConfig";
    std::string color_ = "auto";
    std::string output_;
    std::string format_ = "text";
    std::string severity_;
    std::string failOn_ = "error";
    std::vector<std::string> only_;
    std::vector<std::string> disabled_;
    std::string project_;
    bool noProject_ = false;
    bool chain_ = false;
    tool::Settings settings_;
    std::string nesting_ = "bare";
    std::string name_;
    std::uint32_t minOctets_ = 16;
    unsigned from_ = 0;
    unsigned slots_ = 0;
    std::string form_;
    bool tree_ = false;
    bool json_ = false;
    bool compact_ = false;
    bool valueNotation_ = false;
    bool flat_ = false;
    bool trace_ = false;
    bool hex_ = false;
    bool binary_ = false;
    bool cArray_ = false;
    bool base64_ = false;
    bool decode_ = false;
    bool state_ = false;
    bool explain_ = false;
    bool twoSteps_ = false;
    bool sync_ = false;
    bool switch_ = false;
    bool all_ = false;
    bool cpp_ = false;
    std::vector<std::string> recreate_;
};

int withoutMemory()
{
    (void)std::fputs("cellgroupcfg: out of memory\n", stderr);
    return static_cast<int>(Exit::Usage);
}

[[noreturn]] void end()
{
    const std::exception_ptr thrown = std::current_exception();
    if (thrown == nullptr)
    {
        std::abort();
    }
    try
    {
        std::rethrow_exception(thrown);
    }
    catch (const std::bad_alloc&)
    {
        std::_Exit(withoutMemory());
    }
    catch (...)
    {
        std::abort();
    }
}

} // namespace

int main(int argc, char** argv)
{
    // The reader of a pipe has gone: so does this.
    (void)std::signal(SIGPIPE, SIG_DFL);
    // The options alone ask for thousands of strings, and what is said of one that is wrong for more.
    try
    {
        // JSON asks for memory even to give it back, where no exception passes.
        (void)std::set_terminate(end);
        return CommandLine().run(argc, argv);
    }
    catch (const std::bad_alloc&)
    {
        return withoutMemory();
    }
}
