"""The names of all assets by catalog, in the order of the generated constants: by folder, then by the name of the set with
its ending, so that "gymBoy.arab.imageset" is before "gymBoy.imageset". A line "[Folder]" begins a folder; colours.py has the
folders of the colours.

The spellings are those of the application's code, with its mistakes, such as "vdieo" and "welcom"."""

COLORS = """
chartAnkle chartBlackColor chartBlueColor chartBodyFat chartBrightBlueColor chartButtocks
chartDarkBlueColor chartDarkGreenColor chartEmpty chartForearm chartGrayColor chartGreenColor
chartGridColor chartHip chartLightBlueColor chartLightGrayColor chartLightGreenColor
chartLightPurpleColor chartLightRedColor chartOrangeColor chartPinkColor chartPurpleColor
chartRedColor chartShin chartTurquoiseColor chartVioletColor chartWaist chartWrist
chartYellowColor paymentCancelledColor paymentErrorColor paymentNotPaidColor paymentPendingColor
subscriptionBackground subscriptionForeground subscriptionLink subscriptionTextDisabled
subscriptionTextSecondary tagBlueColor tagBlueSelectedColor tagBlueTextColor tagGreenColor
tagGreenSelectedColor tagGreenTextColor tagOrangeColor tagOrangeTextColor barBackgroundColor
blockBackgroundColor blueTextColor borderColor brightBlue defaultButtonPressedBackgroundColor
facebookButton floatingButtonBackgroundColor instagramButton orangeButtonPressedBackgroundColor
otherButtonForegroundColor pinkSelected redButtonPressedBackgroundColor
selectedTagButtonBackgroundColor selectedTagButtonBorderColor tagButtonBackgroundColor
tagButtonForegroundColor vkButton vkButtonPressed casablanca curiousBlue currentWorkoutBorderColor
darkBackgroundColor darkTextColor darkTextInfo dimmingColor extraLightBlueColor gradientDarkColor
infoTextColor invoiceBackgroundColor labelColor lightBackgroundColor lightBlue lightPinkColor
lightTextColor lightTextWhiteColor limitedFeature placeholderImageTintColor postButtonTintColor
progressGreen receptPositionBackgroundColor replaceIconColor
segmentedControlSelectedInactiveTabColor selectedServiceTypeIcon semiTransWhite separatorColor
separatorColorClearInLightMode supersetDarkColor supersetNormalColor tableHeaderColor
textGray2Color textPrimary textSecondary tooltipBackgroundColor unselectedPageColor
unselectedServiceRadioButton unselectedServiceTypeIcon warningTextColor
""".split()

IMAGES = """
[Authorization]
icon_show icon_unshow login pass
[CoachList]
icon_more_info_vertical slider slider_a slider_button star_ star_a star_big_ star_big_a star_grey
star_half_a
[CoachProfile]
icon_about icon_achievements icon_club icon_education icon_experience icon_goal icon_more
icon_sertificates icon_work icon_years
[Common]
action_complain action_copy action_delete action_edit action_graphic action_messageoff
action_messageon addPhoto add_feed approved arrowBottom arrow_down arrow_right arrow_up
badge_bookmark bigDislike bigLike blacklist_avatar blacklist_chat blacklist_chat_small
blacklist_comments blacklist_comments_small blacklist_feed blacklist_feed_small
blacklist_my_post_comments blacklist_my_post_comments_small blacklist_profile
blacklist_profile_small button_add button_add_placeholder button_delete button_edit button_info
button_pause_vdieo button_play_vdieo button_play_video_big calendar_arrow_icon change_position
chart_icon_down chart_icon_up
[Conversation/Input]
add bubble_1 bubble_2 button_play_video send
[Conversation/Messages]
chat_another_user_readed chat_delivered chat_in_delivery chat_not_delivered chat_sent
[Conversation/People]
ava_1 ava_2 ava_3 ava_4 search_field
[Courses]
course_icon_coach course_start_chat cup
[Desktop]
advice1 advice2 advice3 advice4 advice5 advice_registration calendarBack calendarCheck
calendarNext calendarTraining chart_placeholder desktopArrowWhite desktopInfoButton desktopRefresh
desktopStartDay icon_history men_ectomorph men_endomorph men_mezomorph women_ectomorph
women_endomorph women_mezomorph
[Diet/Load]
daily_load_high daily_load_low daily_load_medium diet_list_view_button diet_table_view_button
meals_count_image
[Diet/Targets]
female_training_target_maintain_ar female_training_target_maintain_ru
female_training_target_weight_gain_ar female_training_target_weight_gain_ru
female_training_target_weight_loss_ar female_training_target_weight_loss_ru
male_training_target_maintain_ar male_training_target_maintain_ru
male_training_target_weight_gain_ar male_training_target_weight_gain_ru
male_training_target_weight_loss_ar male_training_target_weight_loss_ru
[Food]
banana diet_spinner fried_egg omlet
[General]
diet_category_59_icon diet_category_60_icon diet_category_61_icon diet_category_62_icon
diet_category_63_icon diet_category_64_icon diet_category_65_icon diet_category_66_icon
diet_category_67_icon diet_category_68_icon diet_category_69_icon diet_category_70_icon
diet_category_71_icon diet_category_72_icon diet_category_73_icon diet_category_74_icon
diet_category_75_icon diet_category_76_icon diet_category_77_icon diet_category_78_icon
diet_category_79_icon diet_category_80_icon diet_category_81_icon diet_category_82_icon
diet_category_83_icon diet_category_84_icon diet_category_85_icon disclosure_icon exerciseCarousel
exerciseCarouselLocked exerciseInfo exercise_add expand-06 floatingButtonAdd floatingButtonHelp
floatingButtonToBottom hls_button_pause_video hls_button_play_video hls_icon_backward
hls_icon_expand hls_icon_forward hls_icon_min hls_quality_settings iconAdd iconRemove icon_app
icon_auto icon_back icon_backgr_data icon_bookmark icon_comments icon_copy icon_dislike icon_done
icon_down icon_edit icon_favorite icon_favorite_a icon_filter icon_forward icon_info icon_like
icon_like_handbook icon_min icon_month icon_month_refresh icon_once icon_recommend icon_refresh
icon_replace icon_sort icon_time icon_unbookmark icon_unread icon_up icon_video icon_warning
menu_answers menu_blocked menu_cards menu_cash menu_exit menu_login menu_messages menu_money
menu_progress menu_sound menu_subscription menu_theme menu_timer menu_units menu_workout_review
[Menu]
icon_analytics icon_blocked icon_community icon_copy_id icon_email icon_exit icon_lifestyle
icon_login icon_messages_dots_20 icon_orders icon_password icon_rate icon_settings icon_share
icon_support icon_tape icon_theme_dark icon_theme_light icon_theme_system
[Navigation]
icon_share2 navbarBack navbarBookmark navbarBookmarkFilled navbarCopy navbarFilter navbarFontSize
navbarInfo navbarPlayVideo navbarShare navbarShoppingCart navbar_add navbar_cancel navbar_settings
notification_post post_more tabEdit tabHistory trainingList
[Notices]
noWatch nosound not_approved
[Placeholders]
addAnalytics addCard addCoach addDiet addMeasurements addMessagePlaceholder addOrder addSportFood
blocked_users coursesError emptyClients emptyComments emptyFavorites emptyInvoices
exercisesHistoryPlaceholder feedPlaceholder healthKitPermission notificationsPermission
profileAbout profilePhoto searchEmpty settings
[Profile]
profile_write quality_settings-04 radiobutton radiobutton_a radiobutton_active
radiobutton_inactive searchIcon share_fb share_inst share_more
[Sharing]
share_logo small_info
[SocialNetworks]
apple_colored facebook_colored instagram_colored vk_colored
[Training]
startSet stopSet superSetLine superSetPoint tab_selected target_lock timer_sound_lock
tooltip_icon_info tooltip_icon_warning1 tooltip_icon_warning2
[User]
ageBoy ageGirl at_gym at_home boy_equipment.arab boy_equipment boy_no_equipment.arab
boy_no_equipment checkbox checkbox_a checkbox_na course_star course_star_filled
defaultCourseBoy.arab defaultCourseBoy defaultCourseGirl.arab defaultCourseGirl girlBack girlFront
girlSide girl_equipment.arab girl_equipment girl_no_equipment.arab girl_no_equipment gymBoy.arab
gymBoy gymGirl.arab gymGirl heightBoy heightGirl homeBoy homeGirl.arab homeGirl manBack manFront
manSide mcalories mpulse msteps sexBoy.arab sexBoy sexGirl.arab sexGirl wcalories weightBoy
weightGirl workoutResultsIcon wpulse wsteps
[Welcome]
welcom_google welcom_logo welcome_apple welcome_fb welcome_instagram welcome_vk yessound
"""

IMAGES2 = """
arrow arrow_left button_delete_pic button_filter_close button_filter_open card choose
exercise_test_image facebook fitness_icon icon_blocked_users icon_instruction icon_mail icon_pass
icon_sex logo_small menu_community menu_feed menu_finance menu_handbook menu_more menu_my_clients
menu_payment_methods menu_profile menu_settings navbar_edit navbar_extras navbar_help navbar_menu
navbar_write red_point trainer_header_background vkontakte
""".split()

ONBOARDING_DATA = """
country-regions
""".split()

ONBOARDING = """
onboarding.1.arab onboarding.1.asia onboarding.1.europe onboarding.1.latina onboarding.1.usa
onboarding.2.arab onboarding.2 onboarding.3.arab onboarding.3.asia onboarding.3.europe
onboarding.3.latina onboarding.3.usa onboarding.4.arab onboarding.4.asia onboarding.4.europe
onboarding.4.latina onboarding.4.usa
""".split()

SUBSCRIPTION = """
[People]
subscription_man.arab subscription_man.asia subscription_man subscription_man.usa
subscription_woman.arab subscription_woman.asia subscription_woman subscription_woman.latina
subscription_woman.usa
[Services]
icon_alt icon_cup icon_dumbbell icon_food_plan icon_graph icon_reactions icon_report
icon_support_subs icon_timer subscription_logo
"""


def _folders(text):
    """name -> folder"""
    folder, result = "", {}
    for word in text.split():
        if word.startswith("["):
            folder = word.strip("[]")
        else:
            result[word] = folder
    return result


# catalog -> image -> folder
FOLDERS = {"Images": _folders(IMAGES), "Subscription": _folders(SUBSCRIPTION)}

# catalog -> asset kind -> names
CATALOGS = {
    "Colors": {"colorset": COLORS},
    "Images": {"imageset": list(FOLDERS["Images"])},
    "Images2": {"imageset": IMAGES2},
    "Onboarding": {"dataset": ONBOARDING_DATA, "imageset": ONBOARDING},
    "Subscription": {"imageset": list(FOLDERS["Subscription"])},
}
