#include "services/SampleHousehold.h"

namespace {

using enum SampleAccount;

// clang-format off

// As CategoryService names its default categories.
constexpr SampleCategory kSalary{nullptr, "Salary / Wages"};
constexpr SampleCategory kRent{"Housing", "Rent/Mortgage Payment"};
constexpr SampleCategory kGroceryFood{nullptr, "Groceries"};
constexpr SampleCategory kFuel{"Transportation", "Gas/Fuel"};
constexpr SampleCategory kElectric{"Utilities", "Electric"};
constexpr SampleCategory kWater{"Utilities", "Water"};
constexpr SampleCategory kStreams{"Entertainment", "Streaming"};
constexpr SampleCategory kDining{nullptr, "Dining & Restaurants"};
constexpr SampleCategory kAutoInsurance{"Insurance", "Auto"};
constexpr SampleCategory kCharity{nullptr, "Charitable Donations"};
constexpr SampleCategory kInternetAccess{"Utilities", "Internet"};
constexpr SampleCategory kMedical{nullptr, "Medical Expenses"};
constexpr SampleCategory kNoCategory{};
constexpr SampleCategory kInterestIncome{nullptr, "Interest Income"};
constexpr SampleCategory kElectronics{"Shopping", "Electronics"};
constexpr SampleCategory kSubscriptions{nullptr, "Subscriptions"};
constexpr SampleCategory kEducation{nullptr, "Education Expenses"};

constexpr SampleEntry kPaycheck{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Brightpath Inc"), QT_TRANSLATE_NOOP("SampleDataService", "Biweekly paycheck"), kSalary};
constexpr SampleEntry kFebruaryRent{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Pinecrest Apartments"), QT_TRANSLATE_NOOP("SampleDataService", "February rent"), kRent};
constexpr SampleEntry kMarchRent{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Pinecrest Apartments"), QT_TRANSLATE_NOOP("SampleDataService", "March rent"), kRent};
constexpr SampleEntry kGroceries{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Greenleaf Market"), QT_TRANSLATE_NOOP("SampleDataService", "Weekly groceries"), kGroceryFood};
constexpr SampleEntry kGas{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Hilltop Gas"), QT_TRANSLATE_NOOP("SampleDataService", "Fill up"), kFuel};
constexpr SampleEntry kElectricBill{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Lakeside Utilities"), QT_TRANSLATE_NOOP("SampleDataService", "Electric bill"), kElectric};
constexpr SampleEntry kWaterBill{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Lakeside Utilities"), QT_TRANSLATE_NOOP("SampleDataService", "Water bill"), kWater};
constexpr SampleEntry kStreaming{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Streamline TV"), QT_TRANSLATE_NOOP("SampleDataService", "Monthly streaming"), kStreams};
constexpr SampleEntry kDinner{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Maplewood Diner"), QT_TRANSLATE_NOOP("SampleDataService", "Dinner out"), kDining};
constexpr SampleEntry kLunch{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Maplewood Diner"), QT_TRANSLATE_NOOP("SampleDataService", "Lunch"), kDining};
constexpr SampleEntry kInsurance{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Clearview Insurance"), QT_TRANSLATE_NOOP("SampleDataService", "Auto insurance"), kAutoInsurance};
constexpr SampleEntry kDonation{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Hope Community Church"), QT_TRANSLATE_NOOP("SampleDataService", "Monthly donation"), kCharity};
constexpr SampleEntry kInternet{Checking, QT_TRANSLATE_NOOP("SampleDataService", "NetConnect ISP"), QT_TRANSLATE_NOOP("SampleDataService", "Internet service"), kInternetAccess};
constexpr SampleEntry kPrescriptions{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Ridgeline Pharmacy"), QT_TRANSLATE_NOOP("SampleDataService", "Prescriptions"), kMedical};
constexpr SampleEntry kCoffee{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Maplewood Diner"), QT_TRANSLATE_NOOP("SampleDataService", "Coffee & pastry"), kDining};
constexpr SampleEntry kToSavings{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Transfer to Savings"), QT_TRANSLATE_NOOP("SampleDataService", "Monthly savings"), kNoCategory, true};
constexpr SampleEntry kFromChecking{Savings, QT_TRANSLATE_NOOP("SampleDataService", "Transfer from Checking"), QT_TRANSLATE_NOOP("SampleDataService", "Monthly savings"), kNoCategory, true};
constexpr SampleEntry kInterest{Savings, QT_TRANSLATE_NOOP("SampleDataService", "Riverbend Credit Union"), QT_TRANSLATE_NOOP("SampleDataService", "Interest payment"), kInterestIncome};
constexpr SampleEntry kDelivery{Visa, QT_TRANSLATE_NOOP("SampleDataService", "Dash Delivery"), QT_TRANSLATE_NOOP("SampleDataService", "Food delivery"), kDining};
constexpr SampleEntry kPhoneCase{Visa, QT_TRANSLATE_NOOP("SampleDataService", "Gadget World"), QT_TRANSLATE_NOOP("SampleDataService", "Phone case"), kElectronics};
constexpr SampleEntry kCloudStorage{Visa, QT_TRANSLATE_NOOP("SampleDataService", "CloudWatch Plus"), QT_TRANSLATE_NOOP("SampleDataService", "Cloud storage plan"), kSubscriptions};
constexpr SampleEntry kCardPayment{Visa, QT_TRANSLATE_NOOP("SampleDataService", "Payment - Thank You"), QT_TRANSLATE_NOOP("SampleDataService", "Credit card payment"), kNoCategory};
constexpr SampleEntry kCoffeeBeans{Visa, QT_TRANSLATE_NOOP("SampleDataService", "Stellar Coffee"), QT_TRANSLATE_NOOP("SampleDataService", "Coffee beans"), kGroceryFood};
constexpr SampleEntry kBooks{Visa, QT_TRANSLATE_NOOP("SampleDataService", "BookNest Online"), QT_TRANSLATE_NOOP("SampleDataService", "Programming books"), kEducation};
constexpr SampleEntry kUsbHub{Visa, QT_TRANSLATE_NOOP("SampleDataService", "TechVault"), QT_TRANSLATE_NOOP("SampleDataService", "USB hub"), kElectronics};
constexpr SampleEntry kMonthlyRent{Checking, QT_TRANSLATE_NOOP("SampleDataService", "Pinecrest Apartments"), QT_TRANSLATE_NOOP("SampleDataService", "Monthly rent"), kRent};

constexpr SampleTransaction kTransactions[]{
    {kPaycheck, -60, 285'000},
    {kPaycheck, -46, 285'000},
    {kPaycheck, -33, 285'000},
    {kPaycheck, -19, 285'000},
    {kPaycheck, -6, 285'000},
    {kFebruaryRent, -59, -145'000, "1041"},
    {kMarchRent, -29, -145'000, "1043"},
    {kGroceries, -57, -8'745},
    {kGroceries, -47, -9'230},
    {kGroceries, -38, -7'650},
    {kGroceries, -27, -10'120},
    {kGroceries, -17, -8'890},
    {kGroceries, -8, -11'540},
    {kGroceries, -2, -9'475},
    {kGas, -55, -4'523},
    {kGas, -42, -3'980},
    {kGas, -25, -4'100},
    {kGas, -11, -4'250},
    {kGas, -4, -4'680},
    {kElectricBill, -53, -11'280},
    {kElectricBill, -21, -10'870},
    {kWaterBill, -51, -4'590},
    {kStreaming, -49, -1'599},
    {kStreaming, -15, -1'599},
    {kDinner, -44, -4'275},
    {kLunch, -13, -2'340},
    {kInsurance, -40, -12'500},
    {kDonation, -35, -10'000, "1042"},
    {kInternet, -23, -7'999},
    {kPrescriptions, -5, -3'520},
    {kCoffee, -1, -1'285},
    {kToSavings, -30, -50'000},
    {kToSavings, 0, -50'000},
    {kFromChecking, -30, 50'000},
    {kFromChecking, 0, 50'000},
    {kInterest, -45, 820},
    {kInterest, -15, 875},
    {kDelivery, -55, -3'275},
    {kDelivery, -40, -2'850},
    {kDelivery, -20, -2'650},
    {kDelivery, -5, -3'190},
    {kPhoneCase, -50, -2'999},
    {kCloudStorage, -45, -999},
    {kCloudStorage, -2, -999},
    {kCardPayment, -35, 10'123},
    {kCardPayment, -15, 12'993},
    {kCoffeeBeans, -30, -1'895},
    {kBooks, -25, -4'599},
    {kUsbHub, -10, -3'499},
};

constexpr SampleTemplate kTemplates[]{
    {kMonthlyRent, -145'000, Frequency::Monthly, 1},
    {kPaycheck, 285'000, Frequency::Biweekly, 8},
    {kToSavings, -50'000, Frequency::Monthly, 1},
};

// clang-format on

} // namespace

std::span<const SampleTransaction> sampleTransactions()
{
    return kTransactions;
}

std::span<const SampleTemplate> sampleTemplates()
{
    return kTemplates;
}
