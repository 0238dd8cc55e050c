#include "overview/enviro_frm.h"

#include "overview/dialog_texts.h"
#include "overview/overview_frm.h"
#include "overview/overview_texts.h"
#include "overview/overview_tips.h"
#include "platform/control_captions.h"
#include "platform/list_combo.h"
#include "platform/mnemonics.h"
#include "platform/step_button.h"
#include "platform/svg_picture.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "store/profile_keys.h"
#include "ui_enviro_frm.h"

#include <QValidator>

#include <array>

namespace torvane {

namespace {

constexpr QSize pictureSize(96, 64);
constexpr int percentLength = 12; // room for "INVALID %", as a damaged scenario shows it

/// Takes no key that would bring a number outside 0 to 100. What a scenario holds is shown as it stands.
class PercentValidator : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString& text, int&) const override
    {
        const double percent = boundedValue(text);
        return percent >= 0 && percent <= 100 ? Acceptable : Invalid;
    }
};

} // namespace

EnviroFrm::EnviroFrm(Editor& editor)
    : EditorForm(editor, QStringLiteral("EnviroFrm"), Qt::Dialog),
      m_ui(std::make_unique<Ui::EnviroFrm>()),
      m_moon(hiddenControl<ListCombo>("ComboMoon"))
{
    m_ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    for (QLineEdit* box : {m_ui->TxtVis, m_ui->TxtRadar}) {
        box->setMaxLength(percentLength);
        box->setValidator(new PercentValidator(box));
    }
    m_ui->imgNight->hide();
    connectClocks();
    connectWeather();
    on(m_ui->cmdOK, &QPushButton::clicked, [this] { save(); });
    on(m_ui->CmdCancel, &QPushButton::clicked, [this] { cancel(); });
}

EnviroFrm::~EnviroFrm() = default;

void EnviroFrm::onLoad()
{
    EditorForm::onLoad();
    drawPictures();
    show(scenarioDefaults(m_editor.language()).environment);
}

void EnviroFrm::applyCaptions(Language language)
{
    applyCaptionTable(*this, environmentCaptions, language);
    for (QGroupBox* group : {m_ui->fraTime, m_ui->fraWeather, m_ui->fraPlace}) {
        group->setTitle(captionOf(environmentGroups, group->objectName(), language));
    }
    applyControlTips(*this, environmentTips, language);
    fillLists(*this, language);
    applyMnemonics();
}

// Each field has the label that stands at it; what is free of the letters that the fixed captions leave
// becomes its mnemonic.
void EnviroFrm::applyMnemonics()
{
    const Language language = m_editor.language();
    QString taken;
    for (const QPushButton* button : {m_ui->cmdOK, m_ui->CmdCancel}) {
        taken.append(mnemonicOf(button->text()));
    }
    const std::array labels{std::pair{m_ui->lblStartTime, "TxtStartTime"},
                            std::pair{m_ui->lblSunrise, "TxtSunrise"},
                            std::pair{m_ui->lblSunset, "TxtSunset"},
                            std::pair{m_ui->lblGameLength, "lblGmLenHour"},
                            std::pair{m_ui->lblWindSpd, "TxtWindSpd"},
                            std::pair{m_ui->lblSeaState, "ComboSeaState"},
                            std::pair{m_ui->lblWindDir, "TxtWindDir"},
                            std::pair{m_ui->lblRain, "cmbRain"},
                            std::pair{m_ui->lblVis, "TxtVis"},
                            std::pair{m_ui->lblRadar, "TxtRadar"},
                            std::pair{m_ui->lblMonth, "ComboMonth"},
                            std::pair{m_ui->lblYear, "ComboYear"},
                            std::pair{m_ui->lblLocation, "ComboLocation"},
                            std::pair{m_ui->lblAirSup, "ComboAirSup"}};
    for (const auto& [label, control] : labels) {
        label->setText(
            withMnemonic(captionOf(environmentLabels, QString::fromLatin1(control), language), taken));
    }
}

void EnviroFrm::drawPictures()
{
    m_ui->imgDay->setPixmap(svgPicture(QStringLiteral(":/icons/day.svg"), pictureSize, devicePixelRatioF()));
    m_ui->imgNight->setPixmap(
        svgPicture(QStringLiteral(":/icons/night.svg"), pictureSize, devicePixelRatioF()));
}

void EnviroFrm::connectClocks()
{
    const struct
    {
        StepButton* button;
        QLabel* clock;
        ClockButton what;
    } buttons[] = {
        {m_ui->cmdHours, m_ui->TxtStartTime, ClockButton::StartHours},
        {m_ui->cmdMinutes, m_ui->TxtStartTime, ClockButton::StartMinutes},
        {m_ui->cmdSunriseHour, m_ui->TxtSunrise, ClockButton::SunriseHour},
        {m_ui->cmdSunriseMin, m_ui->TxtSunrise, ClockButton::SunriseMinutes},
        {m_ui->cmdSunsetHour, m_ui->TxtSunset, ClockButton::SunsetHour},
        {m_ui->cmdSunsetMin, m_ui->TxtSunset, ClockButton::SunsetMinutes},
    };
    for (const auto& [button, clock, what] : buttons) {
        on(button, &StepButton::clicked,
           [this, clock = clock, what = what] { step(clock, what, ClockStep::Click); });
        on(button, &StepButton::plusPressed,
           [this, clock = clock, what = what] { step(clock, what, ClockStep::PlusKey); });
        on(button, &StepButton::minusPressed,
           [this, clock = clock, what = what] { step(clock, what, ClockStep::MinusKey); });
    }
    on(m_ui->cmdGameLenHours, &StepButton::clicked,
       [this] { showGameLength(steppedGameLengthHour(gameLength())); });
    on(m_ui->cmdGameLenMin, &StepButton::clicked,
       [this] { showGameLength(steppedGameLengthMinutes(gameLength())); });
}

void EnviroFrm::connectWeather()
{
    const auto stepper = [this](StepButton* button, QLineEdit* box, auto rule) {
        on(button, &StepButton::clicked, [box, rule] { box->setText(rule(box->text())); });
    };
    const auto windStepper = [this](StepButton* button, int change) {
        on(button, &StepButton::clicked, [this, change] {
            const QString speed = steppedWindSpeed(m_ui->TxtWindSpd->text(), change);
            m_ui->TxtWindSpd->setText(speed);
        });
    };
    windStepper(m_ui->Command7, 1);
    windStepper(m_ui->Command8, -1);
    stepper(m_ui->Command11, m_ui->TxtWindDir,
            [](const QString& text) { return steppedWindDirection(text, 1); });
    stepper(m_ui->Command12, m_ui->TxtWindDir,
            [](const QString& text) { return steppedWindDirection(text, -1); });
    const auto day = [this] { return m_ui->imgDay->isVisibleTo(this); };
    stepper(m_ui->Command5, m_ui->TxtVis,
            [day](const QString& text) { return steppedVisibility(text, 1, day()); });
    stepper(m_ui->Command3, m_ui->TxtVis,
            [day](const QString& text) { return steppedVisibility(text, -1, day()); });
    stepper(m_ui->Command6, m_ui->TxtRadar, [](const QString& text) { return steppedRadar(text, 1); });
    stepper(m_ui->Command4, m_ui->TxtRadar, [](const QString& text) { return steppedRadar(text, -1); });
    on(m_ui->TxtWindSpd, &QLineEdit::textChanged, [this] { windTyped(); });
    on(m_ui->TxtWindDir, &QLineEdit::textChanged, [this] { directionTyped(); });
    on(m_ui->ComboSeaState, &ListCombo::activated, [this] { seaStatePicked(); });
}

void EnviroFrm::step(QLabel* clock, ClockButton button, ClockStep step)
{
    showClock(clock, clockCaption(steppedClock(clockTimeOf(clock->text()), button, step)));
}

void EnviroFrm::showClock(QLabel* clock, const QString& caption)
{
    if (clock->text() != caption) {
        clock->setText(caption);
        updateDayNight();
    }
}

void EnviroFrm::updateDayNight()
{
    const bool day = isDay(clockTimeOf(m_ui->TxtStartTime->text()), clockTimeOf(m_ui->TxtSunrise->text()),
                           clockTimeOf(m_ui->TxtSunset->text()));
    m_ui->imgDay->setVisible(day);
    m_ui->imgNight->setVisible(!day);
    setValue(m_editor.mainFrm().chkDayNight, day ? 1 : 0);
    m_ui->TxtVis->setText(visibilityAt(m_ui->TxtVis->text(), day));
}

void EnviroFrm::windTyped()
{
    const WindCheck typed = checkWindSpeed(m_ui->TxtWindSpd->text());
    if (typed.seaState) {
        m_ui->ComboSeaState->showEntry(QString::number(*typed.seaState));
    }
    if (!typed.check.accepted) {
        showOutOfRange(m_editor, OverviewMessage::WindSpeedRange);
        m_ui->TxtWindSpd->setText(typed.check.text);
    }
}

void EnviroFrm::directionTyped()
{
    const TypedCheck typed = checkWindDirection(m_ui->TxtWindDir->text());
    if (!typed.accepted) {
        showOutOfRange(m_editor, OverviewMessage::HeadingRange);
    }
    if (m_ui->TxtWindDir->text() != typed.text) {
        m_ui->TxtWindDir->setText(typed.text);
    }
}

void EnviroFrm::seaStatePicked()
{
    RandomSource& random = m_editor.services().randomSource;
    const int wind =
        windForSeaState(m_ui->ComboSeaState->currentText().toInt(), m_ui->TxtWindSpd->text(), [&] {
            random.seed(static_cast<std::uint32_t>(m_editor.services().clock.now().toMSecsSinceEpoch()));
            return random.next();
        });
    m_ui->TxtWindSpd->setText(QString::number(wind));
}

GameLength EnviroFrm::gameLength() const
{
    return {.hour = m_ui->lblGmLenHour->text(), .minutes = m_ui->lblGmLenMin->text()};
}

void EnviroFrm::showGameLength(const GameLength& length)
{
    m_ui->lblGmLenHour->setText(length.hour);
    m_ui->lblGmLenMin->setText(length.minutes);
    m_gameLength->setText(gameLengthCaption(length));
}

EnvironmentValues EnviroFrm::values() const
{
    return {.startTime = m_ui->TxtStartTime->text(),
            .sunrise = m_ui->TxtSunrise->text(),
            .sunset = m_ui->TxtSunset->text(),
            .month = m_ui->ComboMonth->shownText(),
            .year = m_ui->ComboYear->shownText(),
            .airControl = m_ui->ComboAirSup->shownText(),
            .location = m_ui->ComboLocation->shownText(),
            .visibility = m_ui->TxtVis->text(),
            .radar = m_ui->TxtRadar->text(),
            .windSpeed = m_ui->TxtWindSpd->text(),
            .windDirection = m_ui->TxtWindDir->text(),
            .moon = m_moon->shownText(),
            .seaState = m_ui->ComboSeaState->shownText(),
            .gameLength = m_gameLength->text(),
            .gameLengthHour = m_ui->lblGmLenHour->text(),
            .gameLengthMinutes = m_ui->lblGmLenMin->text(),
            .rain = m_ui->cmbRain->shownText()};
}

void EnviroFrm::show(const EnvironmentValues& values)
{
    showClock(m_ui->TxtStartTime, values.startTime);
    showClock(m_ui->TxtSunrise, values.sunrise);
    showClock(m_ui->TxtSunset, values.sunset);
    m_ui->ComboMonth->showEntry(values.month);
    m_ui->ComboYear->showEntry(values.year);
    m_ui->ComboAirSup->showEntry(values.airControl);
    m_ui->ComboLocation->showEntry(values.location);
    m_ui->TxtVis->setText(values.visibility);
    m_ui->TxtRadar->setText(values.radar);
    m_ui->TxtWindSpd->setText(values.windSpeed);
    m_ui->TxtWindDir->setText(values.windDirection);
    m_moon->showEntry(values.moon);
    m_ui->ComboSeaState->showEntry(values.seaState);
    m_gameLength->setText(values.gameLength);
    m_ui->lblGmLenHour->setText(values.gameLengthHour);
    m_ui->lblGmLenMin->setText(values.gameLengthMinutes);
    m_ui->cmbRain->showEntry(values.rain);
}

void EnviroFrm::writeEnvironmentKeys()
{
    for (const auto& [key, value] : encodeEnvironment(values(), m_editor.language())) {
        m_editor.workingProfile().write(scenarioDataSection, key, value);
    }
}

void EnviroFrm::loadExisting()
{
    EnvironmentValues loaded = values();
    for (const LoadedKey& key : environmentKeys()) {
        const QString stored = m_editor.workingProfile().GetIniKey(scenarioDataSection, key.name);
        applyEnvironmentKey(key.name, stored, loaded, m_editor.language());
    }
    show(loaded);
}

// The controls keep a cancelled edit until they are needed: the map shows day or night by the clocks as they
// were last set. Kept.
void EnviroFrm::forgetCancelled()
{
    if (m_cancelled) {
        m_cancelled = false;
        loadExisting();
    }
}

void EnviroFrm::onActivate()
{
    m_cancelled = false;
    loadExisting();
}

void EnviroFrm::onCloseBox()
{
    cancel();
}

void EnviroFrm::save()
{
    writeEnvironmentKeys();
    leave();
}

void EnviroFrm::cancel()
{
    m_cancelled = true;
    leave();
}

void EnviroFrm::leave()
{
    leaveTo(m_editor.overviewFrm());
}

} // namespace torvane
