"""Line icons of all catalogs: a table of names and operations in the notation of canvas.py.

Each line reads "NAME [SIZE] [FRAME[=colour]] | operations" on a 24 x 24 grid. Frames: tile (soft
square behind), disc (filled circle, white drawing), soft (pale circle), plain (coloured drawing),
mark (drawing made smaller, its last operation at full size in the corner). An icon without a colour is
a template: the application tints it. The size is in points, 24 if it is absent. names.py says why
some names have mistakes.
"""

from functools import partial

import glyphs  # noqa: F401  (fills the vocabulary)
from canvas import Drawing

TABLE = """
icon_show | u eye
icon_unshow | u eye_shut
login | r 3 3 18 18 5;c 12 10 3;p M6.5 18.5C7.3 15.7 9.3 14.8 12 14.8S16.7 15.7 17.5 18.5
pass | u lock;C 12 15 1.4;l 12 15 12 17
icon_more_info_vertical | u dots_v
slider plain=fog | l~4 3 12 21 12
slider_a plain=blue | l~4 3 12 21 12;C:deep 5 12 4
slider_button 28 plain=fog | C:white 12 12 10;c~1.4 12 12 10;l:grey~1.5 10 9 10 15;l:grey~1.5 14 9 14 15
star_ plain=gold | u star
star_a plain=gold | S~2 12 12.7 10 4.4
star_big_ 44 plain=gold | s~1.3 12 12.7 10.6 5
star_big_a 44 plain=gold | S~1.3 12 12.7 10.6 5;p:cream~1 M6.5 10.6L10 10
star_grey plain=fog | S~2 12 12.7 10 4.4
star_half_a plain=gold | P M12 2.7V17.1L6.1 20.8L7.8 14L2.5 9.6L9.4 9.1Z;u star
course_star plain=violet | s~2 12 12.6 9.4 5.4
course_star_filled plain=violet | S~2 12 12.6 9.4 5.4
icon_about | u user -3 0 .92;l 17 7 22 7;l 18 11.5 22 11.5;l 19.5 16 22 16
icon_achievements | u medal
icon_club mark | u house;u m_star 0.5 0 1.05
icon_education | u cap
icon_experience | l 5 20.5 5 16.5;l 12 20.5 12 13;l 19 20.5 19 10;l 3.5 11 9.5 6.5 13 8 19 3
icon_goal | u target;l 12 12 21 3
icon_more | u dots
icon_sertificates | r 2.5 3.5 19 13 2;l 6.5 8 17.5 8;l 6.5 12 11 12;C 16.5 14.5 3;l 15 16 15 21.5 16.5 20.3 18 21.5 18 16
icon_work | u briefcase
icon_years | u calendar;S 12 15.6 4 1.8
action_complain | u bubble;l 12 6.5 12 10.2;C 12 13.2 1.2
action_copy | u copy
action_delete plain=red | u trash
action_edit | u pencil 0 -1.5 .92;l 11 21 20.5 21
action_graphic | u curve
action_messageoff | u bubble;l 3 21 21 3
action_messageon | u bubble;l 8.5 10 11 12.5 15.5 7.8
addPhoto mark | u camera;u m_plus
add_feed mark | u page;u m_plus
approved plain=green | c 12 12 9;l 7.8 12.3 10.8 15.3 16.3 9.3
not_approved plain=red | c 12 12 9;l 8.7 8.7 15.3 15.3;l 15.3 8.7 8.7 15.3
arrowBottom 16 | l~3.2 4 8.5 12 16 20 8.5
arrow_down | u arrow_d
arrow_right | u arrow_r
arrow_up | u arrow_u
badge_bookmark 20 disc=orange | P:white M7 3.5H17V20.5L12 16.5L7 20.5Z
bigDislike 56 soft=red | u thumb 24 24 1 180
bigLike 56 soft=green | u thumb
blacklist_avatar mark | u user;u m_block
blacklist_chat mark | u bubble;u m_block
blacklist_chat_small 16 | u bubble;l 8 6.5 16 13.5
blacklist_comments mark | u talk;u m_block
blacklist_comments_small 16 | u round_bubble;l 7 7 17 16
blacklist_feed mark | u list;u m_block
blacklist_feed_small 16 | u menu;l 15 15 21 21;l 21 15 15 21
blacklist_my_post_comments mark | u page;l 8.5 12 15.5 12;l 8.5 16 12 16;u m_block
blacklist_my_post_comments_small 16 | u page;l 9 11.5 15 17.5;l 15 11.5 9 17.5
blacklist_profile mark | r 3 4 18 16 3;c 9 10.5 2.3;p M5.8 16.5C6.2 14.5 7.3 14 9 14S11.8 14.5 12.2 16.5;l 15 10 18 10;u m_block
blacklist_profile_small 16 | u user;l 15.5 3 21.5 9;l 21.5 3 15.5 9
button_add disc=blue | u plus
button_delete disc=red | u minus
button_edit disc=slate | u pencil
button_info disc=blue | u i -1.2 -1.2 1.1
button_pause_vdieo 44 disc=night | R 6 4 4.6 16 1.5;R 13.4 4 4.6 16 1.5
button_play_vdieo 44 disc=night | P M7.5 3.5L21 12L7.5 20.5Z
button_play_video 32 soft=blue | P~2 M9 6L18 12L9 18Z
button_play_video_big 72 plain=blue | C/0.16 12 12 12;C 12 12 9;P:white~1 M10 8.3L16 12L10 15.7Z
calendar_arrow_icon 16 | P~2 M6 9H18L12 16Z
change_position | l 3 9 12 9;l 3 15 12 15;l 17.5 4 17.5 20;l 14.5 7 17.5 4 20.5 7;l 14.5 17 17.5 20 20.5 17
chart_icon_down plain=red | l 3 6 9.5 12.5 13 9 20.5 17;l 14.5 17.5 20.5 17.5 20.5 11.5
chart_icon_up plain=green | l 3 18 9.5 11.5 13 15 20.5 7;l 14.5 6.5 20.5 6.5 20.5 12.5
add tile | u plus
send disc=blue | u plane -1 1
chat_another_user_readed 18 plain=blue | u check2
chat_delivered 18 plain=grey | u check2 0 0 1
chat_in_delivery 18 plain=grey | u clock
chat_not_delivered 18 disc=red | l~3 12 4 12 13;C 12 19 2.2
chat_sent 18 plain=grey | u check
search_field 16 | u search
course_icon_coach | u user -.5 -1 .82;l 15 19.5 22 19.5;l~2.6 15 16.8 15 22.2;l~2.6 22 16.8 22 22.2
calendarBack | u left
calendarCheck | u calendar;l 8.3 15 11 17.5 15.8 12.8
calendarNext | u right
calendarTraining | u calendar;l~1.6 9.5 15.5 14.5 15.5;l~2.4 8.5 13.3 8.5 17.7;l~2.4 15.5 13.3 15.5 17.7
desktopArrowWhite plain=white | C:night 12 12 12;l 9.5 6.5 15 12 9.5 17.5
desktopInfoButton disc=violet | u i -1.2 -1.2 1.1
desktopRefresh disc=teal | u turn
desktopStartDay 32 plain=orange | p M7 17A5 5 0 0 1 17 17;l 2.5 17 21.5 17;l 12 3 12 8;l 4.5 8.5 6.5 10.5;l 19.5 8.5 17.5 10.5;l 7 21 17 21
icon_history | p M4.2 8.5A8.8 8.8 0 1 1 3.2 12;l 3.5 3.5 3.8 8.8 9 8.5;l 12 7.5 12 12.3 15.5 14.3
diet_list_view_button | r 3 4 18 6.5 2;r 3 13.5 18 6.5 2
diet_table_view_button | u grid
disclosure_icon 16 | l~2.6 8.5 4.5 16 12 8.5 19.5
exerciseCarousel | r 7 4 10 16 2;l 3.5 7 3.5 17;l 20.5 7 20.5 17;l 11 12 13 12
exerciseCarouselLocked | r 7 4 10 16 2;l 3.5 7 3.5 17;l 20.5 7 20.5 17;R 9.6 11.5 4.8 4 1;p~1.5 M10.5 11.5V10A1.5 1.5 0 0 1 13.5 10V11.5
exerciseInfo | u dumbbell 1 -4 .84;l 12 15.5 12 21;C 12 12.5 1.2
exercise_add mark | u dumbbell;u m_plus
expand-06 | u expand
floatingButtonAdd 56 disc=blue | l~2.4 12 4.5 12 19.5;l~2.4 4.5 12 19.5 12
floatingButtonHelp 56 disc=violet | u ask -1.2 -1.2 1.1
floatingButtonToBottom 44 plain=slate | C:white 12 12 11;c:fog~.8 12 12 11.4;l 7 10 12 15 17 10
hls_button_pause_video 48 | R 6 4 4.2 16 1.4;R 13.8 4 4.2 16 1.4
hls_button_play_video 48 | P~2 M7.5 5L19 12L7.5 19Z
hls_icon_backward 32 | p M5 8.5A9 9 0 1 1 3.3 14;l 4 3.5 4.7 9 10 8.3;P M14.5 10L9.5 13.5L14.5 17Z
hls_icon_expand | l 4 9 4 4 9 4;l 15 4 20 4 20 9;l 20 15 20 20 15 20;l 9 20 4 20 4 15
hls_icon_forward 32 | p M19 8.5A9 9 0 1 0 20.7 14;l 20 3.5 19.3 9 14 8.3;P M9.5 10L14.5 13.5L9.5 17Z
hls_icon_min | l 9 4 9 9 4 9;l 15 4 15 9 20 9;l 20 15 15 15 15 20;l 9 20 9 15 4 15
hls_quality_settings | r 2.5 4.5 19 15 3;l 6.5 9 6.5 15;l 10 9 10 15;l 6.5 12 10 12;p M13.7 9V15H15A3 3 0 0 0 15 9Z
quality_settings-04 | u gear 0 0 .82;l 15.5 22 15.5 20.5;l 19 22 19 17.5;l 22.5 22 22.5 14.5
iconAdd | c 12 12 9;l 12 8 12 16;l 8 12 16 12
iconRemove | c 12 12 9;l 8 12 16 12
icon_app | r 4 2.5 16 19 4;u dumbbell 5.6 4.8 .54;l 10 18.3 14 18.3
icon_auto | u cycle;P M13 7.5L8.8 12.8H11.7L11 16.5L15.2 11.2H12.3Z
icon_back | l 21 12 3.5 12;l 11.5 4 3.5 12 11.5 20
icon_backgr_data | p M6.5 18.5A4.5 4.5 0 0 1 6.8 9.5A6 6 0 0 1 18.2 10.5A4 4 0 0 1 18 18.5;l 12 21.5 12 13;l 9 15.5 12 12.5 15 15.5
icon_bookmark | u bookmark
icon_comments | u round_bubble;l 8 9.5 16 9.5;l 8 13 13 13
icon_copy | u copy;l 12.5 15 17.5 15;l 12.5 18 15.5 18
icon_copy_id | r 2.5 5 19 14 2.5;c 8 10.7 1.9;p M5 16C5.3 14.3 6.4 13.8 8 13.8S10.7 14.3 11 16;l 14.5 10 18 10;l 14.5 14 18 14
icon_dislike | u thumb 24 24 1 180
icon_done | u check
icon_down | u down
icon_edit | u pencil 3.6 -.6 .86;p M10 4H6A2.5 2.5 0 0 0 3.5 6.5V18A2.5 2.5 0 0 0 6 20.5H17.5A2.5 2.5 0 0 0 20 18V14.5
icon_favorite | u heart
icon_favorite_a plain=red | P~2 M12 20.3C5 15.5 2.7 12.5 2.7 8.9A4.9 4.9 0 0 1 12 7A4.9 4.9 0 0 1 21.3 8.9C21.3 12.5 19 15.5 12 20.3Z
icon_filter | l 3 6.5 21 6.5;l 6.5 12 17.5 12;l 10 17.5 14 17.5
icon_forward | l 5 5 12 12 5 19;l 12.5 5 19.5 12 12.5 19
icon_info | c 12 12 9;l 12 11 12 16.5;C 12 7.7 1.2
icon_like | u thumb
icon_like_handbook | u book;P M12 16.3C8.8 14 7.7 12.7 7.7 11A2.3 2.3 0 0 1 12 10.3A2.3 2.3 0 0 1 16.3 11C16.3 12.7 15.2 14 12 16.3Z
icon_min | u shrink
icon_month | u calendar;C 8 14 1.2;C 12 14 1.2;C 16 14 1.2;C 8 17.5 1.2;C 12 17.5 1.2
icon_month_refresh | u calendar;p~1.7 M8.6 15.5A3.4 3.4 0 1 1 9.6 18;l~1.7 8.2 18.5 9.5 17.6 10.3 18.9
icon_once | u calendar;l 10 14 12.3 12.8 12.3 18
icon_recommend | u thumb 0 0 .84;u m_star
icon_refresh | u turn
icon_replace | u loop
icon_sort | l 4 6 15 6;l 4 12 12 12;l 4 18 9 18;l 18 5 18 20;l 15 17 18 20 21 17
icon_time | u clock
icon_unbookmark | u bookmark;l 9.5 7.5 14.5 12.5;l 14.5 7.5 9.5 12.5
icon_unread plain=blue | r 2.5 7 17 13 2.5;l 3.5 9 11 14.5 16.5 10.5;C:red 19.5 6.5 3.5
icon_up | u up
icon_video | u video
icon_warning | u warning
menu_answers tile | u bubble;u ask 2.7 1.2 .78
menu_blocked tile | u block
menu_cards tile | u card
menu_cash tile | u banknote
menu_exit tile | u out
menu_login tile | u in
menu_messages tile | u talk
menu_money tile | u coins
menu_progress tile | u bars
menu_sound tile | u speaker;u waves
menu_subscription tile | u shield;u check 5 4.8 .56
menu_theme tile | u brush
menu_timer tile | u stopwatch
menu_units tile | u ruler
menu_workout_review tile | u clip;l 8.5 13.5 11 16 15.5 11
icon_analytics | u pie
icon_blocked | u user 0 0 .84;l 16 16 22 22;c 19 19 4.2
icon_community | u group
icon_email | c 12 12 3.8;p M15.8 8.2V13.5A2.7 2.7 0 0 0 21 13.5V12A9 9 0 1 0 17.2 19.3
icon_exit | u out 24 24 1 180
icon_lifestyle | u heart;l~1.7 6.5 12 9.3 12 11 9 13.3 14.8 14.8 12 17.5 12
icon_login | u in;C 18 12 1.3
icon_messages_dots_20 20 | u bubble;C 8.2 10 1.4;C 12 10 1.4;C 15.8 10 1.4
icon_orders | u bag
icon_password | u key
icon_rate | u bubble;S 12 10.2 4.6 2
icon_settings | u gear
icon_share | u nodes
icon_support | u headset
icon_tape | u tape
icon_theme_dark | u moon
icon_theme_light | u sun
icon_theme_system | u contrast
icon_share2 | u bent_arrow
navbarBack | l~2.6 15.5 3.5 7 12 15.5 20.5
navbarBookmark | p M5 4.5A2 2 0 0 1 7 2.5H17A2 2 0 0 1 19 4.5V21.5L12 17L5 21.5Z;l 9 8 15 8
navbarBookmarkFilled | P~2 M5 4.5A2 2 0 0 1 7 2.5H17A2 2 0 0 1 19 4.5V21.5L12 17L5 21.5Z
navbarCopy | r 3 3 12.5 12.5 3;p M19 8.5A2 2 0 0 1 21 10.5V18A3 3 0 0 1 18 21H10.5A2 2 0 0 1 8.5 19
navbarFilter | u funnel
navbarFontSize | l 2.5 19.5 8.5 5 14.5 19.5;l 4.7 14.5 12.3 14.5;l 15 19.5 18.5 11 22 19.5;l 16.3 16.7 20.7 16.7
navbarInfo | r 3 3 18 18 6;l 12 11 12 16.5;C 12 7.7 1.3
navbarPlayVideo | c 12 12 9.3;P~1.5 M10 8.3L15.8 12L10 15.7Z
navbarShare | u upload
navbarShoppingCart | u cart
navbar_add | l~2.6 12 3.5 12 20.5;l~2.6 3.5 12 20.5 12
navbar_cancel | l~2.6 5 5 19 19;l~2.6 19 5 5 19
navbar_settings | u sliders
notification_post disc=violet | r 4 3 16 18 3;l 8 9 16 9;l 8 14 13 14
post_more | c 12 12 9.5;C 7.5 12 1.4;C 12 12 1.4;C 16.5 12 1.4
tabEdit | u list 0 0 .84;u m_pencil
tabHistory | u page;l~1.8 12 10.5 12 14 14.5 15.5
trainingList | u dumbbell 4.5 -4 .62;l 4 13 20 13;l 4 17 20 17;l 4 21 14 21
noWatch | r 6.5 6.5 11 11 3;l 9 6.5 9.5 2.5 14.5 2.5 15 6.5;l 9 17.5 9.5 21.5 14.5 21.5 15 17.5;l 3 3 21 21
nosound | u speaker;l 15.8 9.3 21.2 14.7;l 21.2 9.3 15.8 14.7
yessound | u speaker;p M15.3 8.5A5 5 0 0 1 15.3 15.5;p M18 5.5A9.5 9.5 0 0 1 18 18.5;C 7 12 1.2
settings plain=slate | u gear;C 12 12 1.4
profile_write disc=green | u pencil 1 -1 .95;l 12 21 21 21
radiobutton plain=fog | c 12 12 9
radiobutton_a plain=blue | c 12 12 9;C 12 12 4.8
radiobutton_active 28 disc=green | u check
radiobutton_inactive 28 plain=fog | C:paper 12 12 10.5;c~1.6 12 12 10.5
searchIcon | u search;p~1.6 M7 10.5A3.5 3.5 0 0 1 10.5 7
share_fb 44 disc=deep | c 8.5 9 3.4;p M2.5 20C2.8 16.2 5 15 8.5 15S14.2 16.2 14.5 20;c 17 10.5 2.6;p M17.5 16C20 16 21.3 17.5 21.5 20
share_inst 44 disc=pink | r 3 5 18 15 3;l 4 18 9.5 11.5 13 15.5 15.5 13 20 18;C 16 9.3 1.6
share_more 44 soft=slate | u dots
share_logo 44 disc=teal | u dumbbell 12 -5 1 45
small_info 16 | c 12 12 9.5;l~2.4 12 11 12 17;C 12 7.2 1.6
apple_colored 32 plain=red | P M12 7C9.5 5 3.5 6 3.5 12.5C3.5 18 7 21.5 9.3 21.5C10.5 21.5 11 21 12 21S13.5 21.5 14.7 21.5C17 21.5 20.5 18 20.5 12.5C20.5 6 14.5 5 12 7Z;P:green M12.2 6C12 3.5 14.5 1.5 18 2C17.8 5 15 6.5 12.2 6Z;l:brown~1.6 12 8 12 4.5;P:#FF8A80 M6 12C6 9.8 7.2 9 8.5 9C7.5 10 7 11 7 13Z
facebook_colored 32 plain=deep | R 1 1 22 22 11;C:white 8.6 9.5 2.6;P:white M3.8 18C4 14.8 6 13.6 8.6 13.6S13.2 14.8 13.4 18Z;C:sky 15.8 9.5 2.6;P:sky M14.8 18C14.6 16 14.2 14.8 13.4 14C14.1 13.7 14.9 13.6 15.8 13.6C18.4 13.6 20.2 14.8 20.4 18Z
instagram_colored 32 plain=pink | R 1 1 22 22 5;R:white 4.5 4.5 15 12 1.5;P:violet M4.5 15L9 9.5L12.5 13.5L15 11L19.5 15V16.5H4.5Z;C:gold 15.8 8 1.6;l:white~1.6 8 19.8 16 19.8
vk_colored 32 plain=blue | R 1 1 22 22 7;R:white 4.5 5.5 11.5 8.5 3;P:white M7 13V17L11 13Z;R:sky 12.5 11 7 6.5 2.5;P:sky M16 17V20.5L19 16Z
startSet 44 disc=green | P~1.5 M8 4.5L19.5 12L8 19.5Z
stopSet 44 disc=red | R 5 5 14 14 2.5
superSetLine plain=violet | l~3 12 0 12 24;C:lilac 12 12 3.5
superSetPoint plain=violet | C:lilac 12 12 10;C 12 12 6
tab_selected plain=blue | R 3 10 18 4 2
target_lock | u target 0 0 .86;R 14 17 9 6.5 1.5;p~1.6 M16 17V15.5A2.5 2.5 0 0 1 21 15.5V17
timer_sound_lock | u stopwatch 0 0 .84;R 14 17.5 9 6 1.5;p~1.6 M16 17.5V16A2.5 2.5 0 0 1 21 16V17.5
tooltip_icon_info 20 plain=blue | R 1.5 1.5 21 21 6.5;l:white~2.4 12 11.5 12 17.3;C:white 12 7.2 1.6
tooltip_icon_warning1 20 disc=orange | u bang -3 -3 1.25
tooltip_icon_warning2 20 plain=red | P~2 M12 3.5L22 20.5H2Z;l:white 12 9.5 12 14;C:white 12 17.3 1.2
checkbox plain=fog | r 3.5 3.5 17 17 4
checkbox_a plain=blue | R~2 3.5 3.5 17 17 4;l:white~2.2 7.8 12.3 10.8 15.3 16.3 9
checkbox_na plain=fog | R:mist~2 3.5 3.5 17 17 4;l:grey~2.2 8 12 16 12
mcalories plain=blue | P/0.2 M12 2.5C13.5 6.5 18.8 9 18.8 14.5A6.8 6.8 0 0 1 5.2 14.5C5.2 12 6.5 10.3 8 9C8.3 10.8 9 11.5 10 12C10 8 10.5 5 12 2.5Z;u flame
mpulse plain=blue | C/0.2 12 12 10;u pulse
msteps plain=blue | P/0.2 M3 7.5V17.5H21.5C21.5 14.8 20 13.8 17.5 13.4C14.5 12.8 12 10.5 10.5 7.5C8.5 9.3 5.5 9.3 3 7.5Z;u shoe
wcalories plain=pink | u flame;P M12 20.5A3.3 3.3 0 0 1 8.7 17.2C8.7 15.3 11 14.5 12 12.5C13 14.5 15.3 15.3 15.3 17.2A3.3 3.3 0 0 1 12 20.5Z
wpulse plain=pink | P/0.2 M12 20.3C5 15.5 2.7 12.5 2.7 8.9A4.9 4.9 0 0 1 12 7A4.9 4.9 0 0 1 21.3 8.9C21.3 12.5 19 15.5 12 20.3Z;u heart;l~1.6 6.5 12 9.5 12 11 9.3 13 14.5 14.5 12 17.5 12
wsteps plain=pink | E 7.5 8 2.8 4.2;E 7.3 15.3 2 2.2;E 16.5 11 2.8 4.2;E 16.7 18.3 2 2.2
workoutResultsIcon 32 plain=green | u clip;l 8.5 16 11 13 13 14.8 16 10.5
welcom_google disc=orange | u globe
welcome_apple disc=red | u apple;p~1.6 M11.5 5.5C9.5 5.5 8.5 4.2 8.3 2.8;C 12 14 1.4
welcome_fb disc=deep | u users
welcome_instagram disc=pink | u image
welcome_vk disc=blue | u talk
arrow_left | u arrow_l 2.4 2.4 .8;l~1.6 2 4 2 20
button_delete_pic disc=night | u cross
button_filter_close disc=slate | l 5 15 12 8 19 15
button_filter_open disc=blue | u funnel 1 1 .92
facebook disc=blue | u smile
fitness_icon | u kettlebell
icon_blocked_users | u users 0 1 .7;u m_block 0 .4
icon_instruction | u book;l~1.6 6 9 9 9.3;l~1.6 6 13 9 13.3;l~1.6 15 9.3 18 9;l~1.6 15 13.3 18 13
icon_mail | u mail
icon_pass | r 2 7 20 10 3;C 7 12 1.4;C 12 12 1.4;C 17 12 1.4
icon_sex | c 8.3 12 4.4;l 8.3 16.4 8.3 22;l 5.3 19.3 11.3 19.3;c 15 9 4.4;l 18.3 5.7 21.5 2.5;l 17.5 2.3 21.7 2.3 21.7 6.5
menu_community tile | u group
menu_feed tile | r 3 3.5 18 17 3;l 7 8 17 8;l 7 12 17 12;l 7 16 12 16
menu_finance tile | u wallet
menu_handbook tile | u book
menu_more tile | u dots
menu_my_clients tile | u users
menu_payment_methods tile | u card 0 -1 .86;u m_check
menu_profile tile | u user
menu_settings tile | u gear
navbar_edit | p M4.5 19.5L5.3 15.8L15.5 5.6L18.4 8.5L8.2 18.7Z;l 18.5 2.5 21.5 5.5;l 13 20 20.5 20
navbar_extras | c 12 12 9.5;l 7.5 9.5 16.5 9.5;l 7.5 14.5 13 14.5
navbar_help | c 12 12 9.3;u ask
navbar_menu | u menu
navbar_write | u quill
vkontakte disc=deep | u round_bubble
icon_alt 40 soft=violet | u loop
icon_cup 40 soft=gold | u cup
icon_dumbbell 40 soft=blue | u dumbbell
icon_food_plan 40 soft=green | u fork
icon_graph 40 soft=teal | u axis
icon_reactions 40 soft=pink | u heart
icon_report 40 soft=orange | u receipt
icon_support_subs 40 soft=blue | u headset
icon_timer 40 soft=red | u stopwatch
"""


def _draw_framed(drawing, frame, colour, operations):
    drawing.ink = colour or "ink"
    if frame == "tile":
        drawing.draw("R/0.12 0 0 24 24 7")
        drawing.pen = 2.4
        place = (4.2, 4.2, 0.65)
    elif frame == "disc":
        drawing.draw("C 12 12 12")
        drawing.ink, drawing.pen = "white", 2.6
        place = (4.8, 4.8, 0.6)
    elif frame == "soft":
        drawing.draw("C/0.16 12 12 12")
        drawing.pen = 2.4
        place = (4.8, 4.8, 0.6)
    elif frame == "mark":
        body, _, corner = operations.rpartition(";")
        with drawing.placed(0, 0, 0.82):
            drawing.draw(body)
        drawing.draw(corner)
        return
    else:
        place = (0, 0, 1)
    with drawing.placed(*place):
        drawing.draw(operations)


def _icon(size, frame, colour, operations):
    drawing = Drawing(size)
    drawing.template = not colour
    with drawing.placed(scale=size / 24):
        _draw_framed(drawing, frame, colour, operations)
    return drawing


def pictures():
    """name -> function giving its drawing."""
    result = {}
    for line in TABLE.strip().split("\n"):
        head, operations = line.split(" | ")
        name, *options = head.split()
        size, frame, colour = 24, None, None
        for option in options:
            if option.isdigit():
                size = int(option)
            else:
                frame, _, colour = option.partition("=")
        result[name] = partial(_icon, size, frame, colour, operations)
    return result
